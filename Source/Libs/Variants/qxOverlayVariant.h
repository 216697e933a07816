#pragma once

#include "qxVariant.h"

class qxMessage;
struct qxVariantNotifications;

namespace osg {
class NodePtr;
}

/// Chooses the state of the overlays with one name. It changes nothing itself: the host is asked to
/// apply the state.
class qxOverlayVariant : public qxVariant {
public:
    /// The names under which the registry and the variants of this kind announce what happens.
    static const qxVariantNotifications notifications;

    QString overlayName; ///< the overlays are looked up by this name on every call

    /// A variant without options that drives nothing yet.
    qxOverlayVariant() = default;
    /// Takes name, options and default state from the node, as a node variant does for switches and
    /// plain nodes.
    explicit qxOverlayVariant(osg::NodePtr node);

    /// Hands any `state` on to the host, known or not.
    void onSelect(const QString &state) override;
    /// The state of the first overlay of the name; empty when there is none.
    QString onCurrent() const override;

    /// Builds the options anew from the first overlay of the name, as a node variant does.
    void updateVariants();

    /// Adds to `message` what is visible of the node and announces it as a change of overlays;
    /// nothing for a null node.
    void callVariantsNodesChanged(const osg::NodePtr &node, qxMessage &message);
    /// The names from below the scene root down to the node, each followed by "|".
    QString getNodePath(const osg::NodePtr &node);
};
