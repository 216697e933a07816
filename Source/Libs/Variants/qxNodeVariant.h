#pragma once

#include "qxVariant.h"

class qxMessage;
struct qxVariantNotifications;

namespace osg {
class NodePtr;
}

/// Drives what is visible of all nodes with one name: the shown child of switches, the state of
/// transform switches, the traversal mask of other nodes.
class qxNodeVariant : public qxVariant {
public:
    /// The names under which the registry and the variants of this kind announce what happens.
    static const qxVariantNotifications notifications;

    QString nodeName; ///< the nodes are looked up by this name on every call

    /// A variant without options that drives nothing yet.
    qxNodeVariant() = default;
    /// Takes name, options and default state from the node; nameless nodes give empty names.
    explicit qxNodeVariant(osg::NodePtr node);

    /// Applies `state` to every node of the name. Nodes sharing a core are stepped once, and each
    /// is announced. A switch without a child of that name is reported in the log.
    void onSelect(const QString &state) override;
    /// The state of the first node of the name; empty when there is none.
    QString onCurrent() const override;
    /// Of the first node of the name, with its place if it is a transform switch; nothing when
    /// there is none.
    qxShownState shown() const override;

    /// Builds the options anew from the first node of the name. Shortcuts of options that survive
    /// are kept, and so is a default state that is still a state. Without a node no option is left.
    void updateVariants();

    /// Makes everything at and below the nodes visible.
    void showGeometry();
    /// Hides the geometry nodes at and below the nodes; groups keep their masks.
    void hideGeometry();

    /// With qxVariants::_recurse set: makes everything below the node visible, and its ancestors up
    /// to the first visible one.
    void recurseEnable(osg::NodePtr node);
    ///@{
    /// What showGeometry and hideGeometry do to one node; nothing for a null one.
    void pushEnable(osg::NodePtr node);
    void pushDisable(osg::NodePtr node);
    ///@}

    /// Adds to `message` what is visible of the node and announces it; nothing for a null node.
    void callVariantsNodesChanged(const osg::NodePtr &node, qxMessage &message);
    /// The names from below the scene root down to the node, each followed by "|".
    QString getNodePath(const osg::NodePtr &node);
};
