#include "qxTransformVariant.h"

#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "qxVariantKind.h"

#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxStateRules.h"

#include <algorithm>

namespace {

/// The nodes of that name that have transform states, in scene order.
std::vector<qxNodePtr> findTransforms(const QString &name)
{
    std::vector<qxNodePtr> nodes = qxNames::findNodes(name);
    const auto hasNone = [](const qxNodePtr &node) {
        return !qxNodeUtils::hasTransformVariants(node);
    };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), hasNone), nodes.end());
    return nodes;
}

/// Asks the host for the states that are decided, those out of range included.
class Requests : public qxEffectTarget {
public:
    void take(const qxEffect &effect) override
    {
        if (effect.value >= 0)
            qxStateRules::setValue(effect.object, effect.aspect, effect.value);
    }
};

} // namespace

const qxVariantNotifications qxTransformVariant::notifications{
    "transformVariantAdded",   "transformVariantRemoved",
    "transformVariantChanged", nullptr,
    "selectTransformVariants", 0};

qxTransformVariant::qxTransformVariant(const QString &node) : nodeName(node)
{
    name = node;
    updateVariants();
}

void qxTransformVariant::onSelect(const QString &state)
{
    Requests requests;
    qxStateRequest request(state);
    qxStateRules::transform.visit(qxText::toUtf8(nodeName), [&](const qxSceneObject &each) {
        qxStateRules::transform.decide(each, request, requests);
    });
}

QString qxTransformVariant::onCurrent() const
{
    const std::vector<qxNodePtr> nodes = findTransforms(nodeName);
    if (nodes.empty())
        return QString();
    return qxStateRules::stateOf(qxSceneObject(nodes.front()), qxAspect::Pose);
}

void qxTransformVariant::updateVariants()
{
    qxOptionRebuild rebuild(*this);
    const std::vector<qxNodePtr> nodes = findTransforms(nodeName);
    if (nodes.empty())
        return;

    qxSwitchOptions::addSteps(*this);
    const qxNodePtr &node = nodes.front();
    for (int i = 0; i < qxNodeUtils::getTransformVariantCount(node); ++i)
        rebuild.add(qxText::fromUtf8(qxNodeUtils::getTransformVariantName(node, i)));
    defaultState = options.front().name;
    rebuild.restoreDefault();
}
