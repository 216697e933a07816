#include "Internal/Materials/qxSwitchMaterials.h"

#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxVariantLists.h"

#include "qxNames.h"

#include <OpenSG/OSGMaterialPool.h>

#include <algorithm>

namespace {

/// Names a new switch material. A material variant without a material may have a name, too: it
/// would drive the new one.
void name(const osg::SwitchMaterialPtr &created, const QString &wanted)
{
    QString base = wanted;
    QString unique = qxNotify::uniqueMaterialName(base);
    while (qxVariantLists::_materialVariants.find(unique)) {
        base = qxText::fromUtf8(
            qxNodeUtils::getUniqueName(qxText::toUtf8(unique), {qxText::toUtf8(unique)}));
        unique = qxNotify::uniqueMaterialName(base);
    }
    const bool exact = !unique.isEmpty();
    qxMaterials::setName(created, qxText::toUtf8(exact ? unique : base).c_str(), exact);
}

} // namespace

namespace qxSwitchMaterials {

std::vector<qxNodePtr> usersOf(const osg::MaterialPtr &material)
{
    std::vector<qxNodePtr> nodes;
    qxMaterials::getNodesWithMaterial(nodes, material);
    return nodes;
}

osg::SwitchMaterialPtr switchOf(const osg::MaterialPtr &material)
{
    return osg::SwitchMaterialPtr::dcast(material);
}

osg::MaterialPtr chosen(const osg::SwitchMaterialPtr &switchMaterial)
{
    const osg::UInt32 choice = switchMaterial->getChoice();
    return choice < switchMaterial->getMaterials().size() ? switchMaterial->getMaterials(choice)
                                                          : osg::MaterialPtr();
}

osg::MaterialPtr heldBy(const osg::SwitchMaterialPtr &switchMaterial, const QString &name)
{
    const std::string wanted = qxText::toUtf8(name);
    const osg::MFMaterialPtr &held = switchMaterial->getMaterials();
    const auto found = std::find_if(held.begin(), held.end(), [&](const osg::MaterialPtr &each) {
        return !wanted.empty() && qxMaterials::getName(each) == wanted;
    });
    return found == held.end() ? osg::MaterialPtr() : *found;
}

void choose(const osg::SwitchMaterialPtr &switchMaterial, const osg::MaterialPtr &material)
{
    const osg::MFMaterialPtr &held = switchMaterial->getMaterials();
    const auto found = std::find(held.begin(), held.end(), material);
    if (found != held.end())
        qxSceneEdits::setChoice(switchMaterial, osg::UInt32(found - held.begin()));
}

osg::SwitchMaterialPtr make(const QString &wanted, const std::vector<osg::MaterialPtr> &materials)
{
    const osg::SwitchMaterialPtr created = osg::SwitchMaterial::create();
    for (const osg::MaterialPtr &material : materials)
        qxSceneEdits::addMaterial(created, material);
    qxSceneEdits::setChoice(created, 0);
    name(created, wanted);
    qxSceneEdits::addToPool(qxScenegraph::getMaterialPool(), created);
    return created;
}

} // namespace qxSwitchMaterials
