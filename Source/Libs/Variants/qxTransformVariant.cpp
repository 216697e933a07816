#include "qxTransformVariant.h"

#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "Internal/Options/qxSwitchStepping.h"
#include "qxVariantKind.h"

#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxText.h"
#include "qxTransformService.h"

#include <algorithm>

namespace {

/// The nodes of that name that have transform states, in scene order.
std::vector<qxNodePtr> findNodes(const QString &name)
{
    std::vector<qxNodePtr> nodes = qxScenegraph::findNodes(qxText::toUtf8(name).c_str());
    const auto hasNone = [](const qxNodePtr &node) {
        return !qxNodeUtils::hasTransformVariants(node);
    };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), hasNone), nodes.end());
    return nodes;
}

/// The index of the transform state that the step leads to; negative when the node has none such.
int indexAfter(qxStep step, const qxNodePtr &node)
{
    return qxSwitchStepping::stepTransformState(step,
                                                qxNodeUtils::getTransformVariantCurrentIndex(node),
                                                qxNodeUtils::getTransformVariantCount(node));
}

void requestState(const qxNodePtr &node, int index)
{
    auto *service = qxKernelServiceFactory::the()->getService<qxTransformService>();
    const QList<QRPC::NodeTrafoId> request{QRPC::NodeTrafoId(node.getID(), index)};
    service->selectTransformVariants(request, 0, 0);
}

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
    const std::optional<qxStep> step = qxSwitchStepping::stepOf(state);
    const std::string wanted = qxText::toUtf8(state);
    for (const qxNodePtr &node : findNodes(nodeName)) {
        const int index =
            step ? indexAfter(*step, node) : qxNodeUtils::getTransformVariantIndex(node, wanted);
        if (index >= 0)
            requestState(node, index);
    }
}

QString qxTransformVariant::onCurrent() const
{
    const std::vector<qxNodePtr> nodes = findNodes(nodeName);
    if (nodes.empty())
        return QString();
    return qxText::fromUtf8(qxNodeUtils::getSelectedTransformVariantName(nodes.front()));
}

void qxTransformVariant::updateVariants()
{
    qxOptionRebuild rebuild(*this);
    const std::vector<qxNodePtr> nodes = findNodes(nodeName);
    if (nodes.empty())
        return;

    qxSwitchOptions::addSteps(*this);
    const qxNodePtr &node = nodes.front();
    for (int i = 0; i < qxNodeUtils::getTransformVariantCount(node); ++i)
        rebuild.add(qxText::fromUtf8(qxNodeUtils::getTransformVariantName(node, i)));
    defaultState = options.front().name;
    rebuild.restoreDefault();
}
