#include "Internal/Materials/qxSwitchMaterialRepair.h"

#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxMaterialVariant.h"

#include "qxMaterials.h"
#include "qxNames.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMaterialDrawable.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

const QString switchSuffix = QStringLiteral(" Switch");

osg::SwitchMaterialPtr buildSwitchMaterial(const qxMaterialVariant &variant)
{
    const osg::SwitchMaterialPtr created = osg::SwitchMaterial::create();
    qxMaterials::setName(created, qxText::toUtf8(variant.switchMaterialName).c_str(), true);
    for (const qxVariantOption &option : variant.options) {
        const osg::MaterialPtr choice = qxNames::findMaterial(option.name);
        if (choice != osg::NullFC)
            qxSceneEdits::addMaterial(created, choice);
    }
    return created;
}

/// Puts `replacement` in the place of the material on the nodes with such a core.
template <class Core>
void replaceIn(const osg::MaterialPtr &old, const osg::MaterialPtr &replacement)
{
    for (const qxNodePtr &node : qxSwitchMaterials::usersOf(old)) {
        const auto core = Core::Ptr::dcast(node->getCore());
        if (core != osg::NullFC)
            qxSceneEdits::setMaterial(core, replacement);
    }
}

/// Puts the switch material in the place of the ordinary material of its name.
void replaceNamesake(const qxMaterialVariant &variant, const osg::MaterialPtr &namesake)
{
    const osg::MaterialRefPtr kept(namesake); // The pool may be its only owner.
    const osg::SwitchMaterialPtr created = buildSwitchMaterial(variant);
    qxSceneEdits::setChoice(created, 0);
    qxSceneEdits::addToPool(qxScenegraph::getMaterialPool(), created);
    qxSceneEdits::subFromPool(qxScenegraph::getMaterialPool(), namesake);
    replaceIn<osg::MaterialDrawable>(namesake, created);
    qxNotify::sceneMaterialsChanged();
}

void addMissing(const qxMaterialVariant &variant)
{
    const QString name = variant.switchMaterialName;
    const osg::SwitchMaterialPtr created = buildSwitchMaterial(variant);
    qxSceneEdits::addToPool(qxScenegraph::getMaterialPool(), created);
    qxNotify::sceneMaterialsChanged();

    if (!name.endsWith(switchSuffix))
        return;
    const QString plainName = name.left(name.size() - switchSuffix.size());
    const osg::MaterialPtr plain = qxNames::findMaterial(plainName);
    if (plain != osg::NullFC)
        replaceIn<osg::MaterialGroup>(plain, created);
}

} // namespace

namespace qxSwitchMaterialRepair {

void ensureSwitchMaterial(const qxMaterialVariant &variant)
{
    const QByteArray name = variant.switchMaterialName.toUtf8();
    osg::MaterialPtr namesake = osg::NullFC;
    for (const osg::MaterialPtr &each : qxMaterials::findMaterials(name.constData())) {
        if (osg::SwitchMaterialPtr::dcast(each) != osg::NullFC)
            return;
        namesake = each;
    }
    if (namesake != osg::NullFC)
        replaceNamesake(variant, namesake);
    else
        addMissing(variant);
}

} // namespace qxSwitchMaterialRepair
