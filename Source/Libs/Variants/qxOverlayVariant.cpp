#include "qxOverlayVariant.h"

#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxNodeVisibility.h"
#include "Internal/Scene/qxNodesChange.h"
#include "qxVariantKind.h"

#include "qxNames.h"

namespace {

/// Null when the host has no overlay of that name.
qxNodePtr firstOverlay(const QString &name)
{
    const std::vector<qxNodePtr> nodes = qxNames::findOverlays(name);
    return nodes.empty() ? qxNodePtr() : nodes.front();
}

} // namespace

const qxVariantNotifications qxOverlayVariant::notifications{
    "overlayVariantAdded",    "overlayVariantRemoved", "overlayVariantChanged",
    "overlayVariantSelected", "selectOverlayVariants", 1};

qxOverlayVariant::qxOverlayVariant(osg::NodePtr node)
{
    if (node == osg::NullFC)
        return;
    overlayName = qxNames::nameOf(node);
    name = overlayName;
    qxSwitchOptions::build(*this, node);
}

void qxOverlayVariant::onSelect(const QString &state)
{
    const qxDeferredDeletion deferred;
    qxNotify::activateOverlays(state, overlayName);
    qxNotify::variantSelected(notifications, this);
}

QString qxOverlayVariant::onCurrent() const
{
    const qxNodePtr node = firstOverlay(overlayName);
    return node == osg::NullFC ? QString() : qxSwitchOptions::currentState(node);
}

void qxOverlayVariant::updateVariants()
{
    qxOptionRebuild rebuild(*this);
    const qxNodePtr node = firstOverlay(overlayName);
    if (node == osg::NullFC)
        return;
    qxSwitchOptions::rebuild(*this, rebuild, node);
    rebuild.restoreDefault();
}

void qxOverlayVariant::callVariantsNodesChanged(const osg::NodePtr &node, qxMessage &message)
{
    if (node != osg::NullFC)
        qxNotify::variantsOverlaysChanged(message, qxNodesChange::of(node));
}

QString qxOverlayVariant::getNodePath(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeVisibility::nodePath(node));
}
