#include "qxLightVariant.h"

#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxOperation.h"
#include "Internal/Scene/qxNodeVisibility.h"
#include "qxVariantKind.h"

#include "qxLights.h"
#include "qxMessage.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxText.h"

#include <algorithm>

namespace {

/// The light nodes of that name, in scene order.
std::vector<qxNodePtr> findLights(const QString &name)
{
    std::vector<qxNodePtr> nodes = qxScenegraph::findNodes(qxText::toUtf8(name).c_str());
    const auto isNoLight = [](const qxNodePtr &node) { return !qxLights::isLight(node); };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isNoLight), nodes.end());
    return nodes;
}

QString stateOf(const osg::NodePtr &light)
{
    return qxLights::getOn(light) ? variantEnable : variantDisable;
}

void buildOptions(qxLightVariant &variant, const osg::NodePtr &light)
{
    variant.add(variantEnable, QString());
    variant.add(variantDisable, QString());
    variant.add(true, variantToggle, QString());
    variant.defaultState = stateOf(light);
}

} // namespace

const qxVariantNotifications qxLightVariant::notifications{
    "lightVariantAdded",    "lightVariantRemoved", "lightVariantChanged",
    "lightVariantSelected", "selectLightVariants", 1};

qxLightVariant::qxLightVariant(osg::NodePtr node)
{
    lightName = qxText::fromUtf8(qxNodeUtils::getName(node));
    name = lightName;
    if (qxLights::isLight(node))
        buildOptions(*this, node);
}

void qxLightVariant::onSelect(const QString &state)
{
    const qxOperation operation;
    const bool toggle = state == variantToggle;
    if (toggle || state == variantEnable || state == variantDisable) {
        const bool on = state == variantEnable;
        const std::string variantName = qxText::toUtf8(name);
        for (const qxNodePtr &light : findLights(lightName)) {
            qxMessage message = qxNotify::changeBy(variantName);
            qxLights::setOn(light, toggle ? !qxLights::getOn(light) : on);
            callVariantsLightChanged(light, message);
        }
    }
    qxNotify::variantSelected(notifications, this);
}

QString qxLightVariant::onCurrent() const
{
    const std::vector<qxNodePtr> lights = findLights(lightName);
    return lights.empty() ? QString() : stateOf(lights.front());
}

void qxLightVariant::updateVariants()
{
    options.clear();
    const std::vector<qxNodePtr> lights = findLights(lightName);
    if (!lights.empty())
        buildOptions(*this, lights.front());
}

void qxLightVariant::callVariantsLightChanged(const osg::NodePtr &node, qxMessage &message)
{
    if (!qxLights::isLight(node))
        return;
    std::vector<std::string> enabled;
    std::vector<std::string> disabled;
    (qxLights::getOn(node) ? enabled : disabled).push_back(qxNodeUtils::getName(node));
    qxNotify::variantsLightsChanged(message, std::move(enabled), std::move(disabled));
}

QString qxLightVariant::getNodePath(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeVisibility::nodePath(node));
}
