#include "qxLightVariant.h"

#include "Internal/Options/qxStateWriter.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxNodeVisibility.h"
#include "qxVariantKind.h"

#include "qxLights.h"
#include "qxMessage.h"
#include "qxNames.h"
#include "qxNodeUtils.h"

#include <algorithm>

namespace {

/// The light nodes of that name, in scene order.
std::vector<qxNodePtr> findLights(const QString &name)
{
    std::vector<qxNodePtr> nodes = qxNames::findNodes(name);
    const auto isNoLight = [](const qxNodePtr &node) { return !qxLights::isLight(node); };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isNoLight), nodes.end());
    return nodes;
}

QString stateOf(const osg::NodePtr &light)
{
    return qxStateRules::stateOf(qxSceneObject(light), qxAspect::Light);
}

void announceLight(const osg::NodePtr &light, qxMessage &message)
{
    std::vector<std::string> enabled;
    std::vector<std::string> disabled;
    (qxLights::getOn(light) ? enabled : disabled).push_back(qxNodeUtils::getName(light));
    qxNotify::variantsLightsChanged(message, std::move(enabled), std::move(disabled));
}

/// Switches lights and announces each.
class LightChanges : public qxStateWriter {
public:
    explicit LightChanges(const qxLightVariant &variant)
        : m_variantName(qxText::toUtf8(variant.name))
    {
    }
    void finish(const qxSceneObject &light) override
    {
        qxMessage message = qxNotify::changeBy(m_variantName);
        announceLight(light.node, message);
    }

private:
    const std::string m_variantName;
};

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
    lightName = qxNames::nameOf(node);
    name = lightName;
    if (qxLights::isLight(node))
        buildOptions(*this, node);
}

void qxLightVariant::onSelect(const QString &state)
{
    const qxDeferredDeletion deferred;
    LightChanges changes(*this);
    qxStateRequest request(state);
    qxStateRules::light.visit(qxText::toUtf8(lightName), [&](const qxSceneObject &each) {
        qxStateRules::light.decide(each, request, changes);
    });
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
    if (qxLights::isLight(node))
        announceLight(node, message);
}

QString qxLightVariant::getNodePath(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeVisibility::nodePath(node));
}
