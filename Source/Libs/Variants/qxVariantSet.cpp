#include "qxVariantSet.h"

#include "Internal/Options/qxHotkey.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxSetMaintenance.h"
#include "Internal/Registry/qxSetSelection.h"
#include "Internal/Scene/qxNodeVisibility.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantKinds.h"

#include "qxController.h"
#include "qxNames.h"
#include "qxScript.h"

#include <algorithm>

namespace {

/// Refers to the variant by its name; an empty state stands for its default state.
void addTo(qxStateList &list, const qxVariant *variant, const QString &state)
{
    if (variant)
        list.add(variant->name, state.isEmpty() ? variant->defaultState : state);
}

/// Compares the UTF-8 texts byte by byte.
bool contains(const qxStateList &list, const std::string &variantName)
{
    return std::any_of(list.begin(), list.end(), [&](const qxVariantState &each) {
        return qxText::toUtf8(each.variant) == variantName;
    });
}

} // namespace
qxVariantSet::qxVariantSet() = default;

qxVariantSet::qxVariantSet(const QString &setName)
{
    name = setName;
}

qxVariantSet::~qxVariantSet()
{
    if (group && m_leaveGroup)
        m_leaveGroup(this);
}

void qxVariantSet::addMaterialSnapshot(const QString &nodePath, const QString &materialName)
{
    materialSnapshots.insert(nodePath, materialName);
}

void qxVariantSet::appendToScript(const QString &line)
{
    if (!script.isEmpty())
        script += QLatin1Char('\n');
    script += line;
}

void qxVariantSet::setInclInfo(bool nodes, bool mats, bool lights, bool env, bool view)
{
    inclNodes = nodes;
    inclMats = mats;
    inclLights = lights;
    inclEnv = env;
    inclView = view;
}

void qxVariantSet::getInclInfo(bool &nodes, bool &mats, bool &lights, bool &env, bool &view) const
{
    nodes = inclNodes;
    mats = inclMats;
    lights = inclLights;
    env = inclEnv;
    view = inclView;
}

void qxVariantSet::updateShortcut()
{
    qxHotkey::map(hotkey, key, modifiers);
    // Names of keys may have blanks, so a text that names a key is not taken for one of the old
    // form.
    if (key == 0)
        qxHotkey::map(qxHotkey::convertOld(hotkey), key, modifiers);
}

void qxVariantSet::clear()
{
    for (const qxVariantKind *kind : qxVariantKinds::all())
        (this->*kind->states).clear();
    viewpoints.clear();
    values.clear();
    animations.clear();
    animationIndex = 0;
    sequentialAnimation = false;
    hotkey.clear();
    comment.clear();
    script.clear();
    defaultViewpoint.clear();
    key = -1;
    targetNodeNames.clear();
    materialSnapshots.clear();
}

void qxVariantSet::add(qxNodeVariant *variant, const QString &state)
{
    addTo(nodeVariants, variant, state);
}

void qxVariantSet::add(qxMaterialVariant *variant, const QString &state)
{
    addTo(materialVariants, variant, state);
}

void qxVariantSet::add(qxLightVariant *variant, const QString &state)
{
    addTo(lightVariants, variant, state);
}

void qxVariantSet::add(qxOverlayVariant *variant, const QString &state)
{
    addTo(overlayVariants, variant, state);
}

void qxVariantSet::add(qxTransformVariant *variant, const QString &state)
{
    addTo(transformVariants, variant, state);
}

bool qxVariantSet::containsNodeVariant(std::string variantName)
{
    return contains(nodeVariants, variantName);
}

bool qxVariantSet::containsMaterialVariant(std::string variantName)
{
    return contains(materialVariants, variantName);
}

bool qxVariantSet::containsLightVariant(std::string variantName)
{
    return contains(lightVariants, variantName);
}

bool qxVariantSet::containsOverlayVariant(std::string variantName)
{
    return contains(overlayVariants, variantName);
}

bool qxVariantSet::containsTransformVariant(const std::string &variantName)
{
    return findTransformVariant(qxText::fromUtf8(variantName)) != nullptr;
}

void qxVariantSet::select(bool full, bool keepCamera)
{
    const qxDeferredDeletion deferred;
    qxSetSelection::apply(*this, full, keepCamera);
    qxNotify::variantsSetSelected(name);
    qxNotify::variantSetSelected();
    qxController::updateRender(false);
}

void qxVariantSet::selectDefault()
{
    const qxDeferredDeletion deferred;
    qxNotify::variantsSetSelected(name);
    qxSetSelection::applyDefaults(*this);
    qxNotify::variantsSetSelected(name);
    qxNotify::variantSetSelected(this);
    qxController::updateRender(true);
}

void qxVariantSet::executeScript()
{
    qxScript::run(qxText::toUtf8(script).c_str());
}

void qxVariantSet::showGeometry()
{
    for (const QString &nodeName : geometries) {
        for (const qxNodePtr &node : qxNames::findNodes(nodeName))
            pushEnable(node);
    }
}

void qxVariantSet::hideGeometry()
{
    for (const QString &nodeName : geometries) {
        for (const qxNodePtr &node : qxNames::findNodes(nodeName))
            pushDisable(node);
    }
}

void qxVariantSet::pushEnable(osg::NodePtr node)
{
    qxNodeVisibility::pushEnable(node);
}

void qxVariantSet::pushDisable(osg::NodePtr node)
{
    qxNodeVisibility::pushDisable(node);
}

bool qxVariantSet::isEmpty()
{
    return qxSetMaintenance::isEmpty(*this);
}

bool qxVariantSet::isUsed()
{
    return qxSetMaintenance::isUsed(*this);
}

void qxVariantSet::showConnectedVariants()
{
    qxSetMaintenance::highlightVariants(*this);
}

void qxVariantSet::optimize()
{
    qxSetMaintenance::optimize(*this);
}
