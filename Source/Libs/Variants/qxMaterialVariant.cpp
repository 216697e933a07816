#include "qxMaterialVariant.h"

#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "Internal/Options/qxSwitchStepping.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxOperation.h"
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

std::vector<osg::MaterialPtr> findMaterials(const QString &name)
{
    return qxMaterials::findMaterials(qxText::toUtf8(name).c_str());
}

/// The name (UTF-8) of the material that the step leads to.
std::string targetName(const osg::SwitchMaterialPtr &switchMaterial, qxStep step)
{
    const osg::UInt32 index =
        qxSwitchStepping::stepMaterial(step, osg::Int32(switchMaterial->getChoice()),
                                       osg::UInt32(switchMaterial->getMaterials().size()));
    return qxMaterials::getName(switchMaterial->getMaterials(index));
}

/// Chooses the first material of that name; says whether there is one.
bool choose(const osg::SwitchMaterialPtr &switchMaterial, const std::string &name)
{
    const osg::UInt32 count = osg::UInt32(switchMaterial->getMaterials().size());
    for (osg::UInt32 i = 0; i < count; ++i) {
        if (qxMaterials::getName(switchMaterial->getMaterials(i)) != name)
            continue;
        qxSceneEdits::setChoice(switchMaterial, i);
        return true;
    }
    return false;
}

/// Puts `replacement`, which the pool holds, in the place of `material` on every node.
void replaceOnNodes(const osg::MaterialPtr &material, const osg::MaterialPtr &replacement)
{
    std::vector<qxNodePtr> nodes;
    qxMaterials::getNodesWithMaterial(nodes, material);
    for (const qxNodePtr &node : nodes) {
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
    for (const osg::MaterialPtr &material : findMaterials(switchMaterialName)) {
        std::vector<qxNodePtr> nodes;
        qxMaterials::getNodesWithMaterial(nodes, material);
        for (const qxNodePtr &node : nodes)
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
    const qxOperation operation;
    const std::string variantName = qxText::toUtf8(name);
    const std::string baseName = qxText::toUtf8(switchMaterialName);
    const std::string wanted = qxText::toUtf8(state);
    const std::optional<qxStep> step = qxSwitchStepping::stepOf(state);
    for (const osg::MaterialPtr &material : qxMaterials::findMaterials(baseName.c_str())) {
        const auto switchMaterial = osg::SwitchMaterialPtr::dcast(material);
        if (switchMaterial == osg::NullFC || switchMaterial->getMaterials().empty())
            continue;
        const std::string target = step ? targetName(switchMaterial, *step) : wanted;
        if (choose(switchMaterial, target))
            qxNotify::variantsMaterialChanged(variantName, target, baseName);
    }
    qxNotify::variantSelected(notifications, this);
}

QString qxMaterialVariant::onCurrent() const
{
    const auto switchMaterial = osg::SwitchMaterialPtr::dcast(findMaterial(switchMaterialName));
    return switchMaterial == osg::NullFC ? QString() : nameOf(chosen(switchMaterial));
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
