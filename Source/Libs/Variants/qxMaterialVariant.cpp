#include "qxMaterialVariant.h"

#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxStateWriter.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxVariantKind.h"

#include "qxNames.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

using qxNames::findMaterial;
using qxNames::nameOf;
using qxSwitchMaterials::chosen;

/// Puts the switch materials of one name into a state and announces them.
class MaterialChanges : public qxStateWriter {
public:
    // Copies: a listener may remove the variant and whatever holds the state.
    MaterialChanges(const qxMaterialVariant &variant, const QString &state)
        : m_variantName(qxText::toUtf8(variant.name)),
          m_baseName(qxText::toUtf8(variant.switchMaterialName)), m_request(state)
    {
    }
    void apply()
    {
        qxStateRules::material.visit(m_baseName, [this](const qxSceneObject &each) {
            qxStateRules::material.decide(each, m_request, *this);
        });
    }
    void finish(const qxSceneObject &object) override
    {
        if (!m_request.step)
            return qxNotify::variantsMaterialChanged(m_variantName, m_request.name, m_baseName);
        const osg::MaterialPtr shown = chosen(object.switchMaterial);
        qxNotify::variantsMaterialChanged(m_variantName, qxMaterials::getName(shown), m_baseName);
    }

private:
    const std::string m_variantName;
    const std::string m_baseName;
    qxStateRequest m_request;
};

/// Puts `replacement`, which the pool holds, in the place of `material` on every node.
void replaceOnNodes(const osg::MaterialPtr &material, const osg::MaterialPtr &replacement)
{
    for (const qxNodePtr &node : qxSwitchMaterials::usersOf(material)) {
        const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
        const auto geometry = osg::GeometryPtr::dcast(node->getCore());
        if (group != osg::NullFC)
            qxSceneEdits::setMaterial(group, replacement);
        else if (geometry != osg::NullFC)
            qxSceneEdits::setMaterial(geometry, replacement);
    }
}

/// Wraps the material into a new switch material of that name, which takes its place in the scene.
void wrap(const osg::MaterialPtr &material, const QString &name)
{
    const osg::SwitchMaterialPtr switchMaterial = osg::SwitchMaterial::create();
    qxMaterials::setName(switchMaterial, qxText::toUtf8(name).c_str(), true);
    qxSceneEdits::addMaterial(switchMaterial, material);
    qxSceneEdits::setChoice(switchMaterial, 0);
    qxSceneEdits::addToPool(qxScenegraph::getMaterialPool(), switchMaterial);
    replaceOnNodes(material, switchMaterial);
    qxNotify::sceneMaterialsChanged();
}

void setMasks(const QString &switchMaterialName, osg::UInt32 mask)
{
    for (const osg::MaterialPtr &material : qxNames::findMaterials(switchMaterialName)) {
        for (const qxNodePtr &node : qxSwitchMaterials::usersOf(material))
            qxSceneEdits::setTraversalMask(node, mask);
    }
}

} // namespace

const qxVariantNotifications qxMaterialVariant::notifications{
    "materialVariantAdded",    "materialVariantRemoved", "materialVariantChanged",
    "materialVariantSelected", "selectMaterialVariants", 1};

qxMaterialVariant::qxMaterialVariant(osg::MaterialPtr material)
{
    const QString materialName = nameOf(material);
    const auto switchMaterial = osg::SwitchMaterialPtr::dcast(material);
    const bool isSwitch = switchMaterial != osg::NullFC;
    if (!isSwitch && materialName.isEmpty())
        return;

    switchMaterialName = isSwitch ? materialName : materialName + QLatin1String(" Switch");
    name = switchMaterialName;
    qxSwitchOptions::addSteps(*this);
    if (!isSwitch) {
        add(materialName, QString());
        defaultState = materialName;
        wrap(material, switchMaterialName);
        return;
    }
    qxOptionAppender added(*this);
    for (const osg::MaterialPtr &each : switchMaterial->getMaterials())
        added.add(false, nameOf(each), QString());
    defaultState = nameOf(chosen(switchMaterial));
}

void qxMaterialVariant::onSelect(const QString &state)
{
    const qxDeferredDeletion deferred;
    MaterialChanges(*this, state).apply();
    qxNotify::variantSelected(notifications, this);
}

QString qxMaterialVariant::onCurrent() const
{
    const qxSceneObject found(findMaterial(switchMaterialName));
    return found.switchMaterial == osg::NullFC ? QString()
                                               : qxStateRules::stateOf(found, qxAspect::Choice);
}

void qxMaterialVariant::add(osg::MaterialPtr material, const QString &shortcut)
{
    const osg::MaterialPtr found = findMaterial(switchMaterialName);
    if (!qxMaterials::isEditable(found))
        return;
    const auto switchMaterial = osg::SwitchMaterialPtr::dcast(found);
    if (switchMaterial != osg::NullFC && !switchMaterial->hasMaterial(material))
        qxSceneEdits::addMaterial(switchMaterial, material);

    const QString materialName = nameOf(material);
    if (materialName.isEmpty())
        return;
    add(materialName, shortcut);
    qxNotify::updateMaterials();
}

void qxMaterialVariant::remove(osg::MaterialPtr material)
{
    const osg::MaterialPtr found = findMaterial(switchMaterialName);
    if (!qxMaterials::isEditable(found))
        return;
    const QString materialName = nameOf(material); // the material may go with its last holder
    const auto switchMaterial = osg::SwitchMaterialPtr::dcast(found);
    if (switchMaterial != osg::NullFC)
        qxSceneEdits::subMaterial(switchMaterial, material);

    if (materialName.isEmpty())
        return;
    qxVariant::remove(materialName);
    qxNotify::updateMaterials();
}

void qxMaterialVariant::remove(const QString &optionName)
{
    const osg::MaterialPtr found = findMaterial(switchMaterialName);
    if (!qxMaterials::isEditable(found))
        return;
    const auto switchMaterial = osg::SwitchMaterialPtr::dcast(found);
    if (switchMaterial != osg::NullFC) {
        // A removal moves the next material into its place, where it is not looked at again.
        for (osg::UInt32 i = 0; i < switchMaterial->getMaterials().size(); ++i) {
            const osg::MaterialPtr material = switchMaterial->getMaterials(i);
            if (nameOf(material) == optionName)
                qxSceneEdits::subMaterial(switchMaterial, material);
        }
    }
    qxVariant::remove(optionName);
    qxNotify::updateMaterials();
}

void qxMaterialVariant::updateVariants()
{
    qxOptionRebuild rebuild(*this);
    const auto switchMaterial = osg::SwitchMaterialPtr::dcast(findMaterial(switchMaterialName));
    if (switchMaterial == osg::NullFC)
        return;

    rebuild.addSteps();
    for (const osg::MaterialPtr &material : switchMaterial->getMaterials())
        rebuild.add(nameOf(material));
    if (rebuild.restoreDefault())
        return;
    const osg::MaterialPtr shown = chosen(switchMaterial);
    if (shown != osg::NullFC)
        defaultState = nameOf(shown);
}

void qxMaterialVariant::showGeometry()
{
    setMasks(switchMaterialName, qxSceneEdits::Visible);
}

void qxMaterialVariant::hideGeometry()
{
    setMasks(switchMaterialName, qxSceneEdits::Hidden);
}
