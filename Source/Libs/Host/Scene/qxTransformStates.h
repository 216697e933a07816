#pragma once

#include "Scene/OSGTransformStates.h"

#include <OpenSG/OSGComponentTransform.h>

#include <string>
#include <vector>

/// A named pose that a node can be put into.
struct qxTransformState {
    std::string name; ///< UTF-8
    osg::Matrix pose; ///< relative to the node's parent
};

/// Keeps and applies the named transform states of nodes; qxNodeUtils reads them.
class qxTransformStates {
public:
    /// The attachment that keeps them, null for a null node and for one without states.
    static osg::TransformStatesPtr of(const osg::NodePtr &node);

    /// Gives the node these states in place of its earlier ones. `selected` tells in which of them
    /// the node stands now, -1 for none; nothing is moved.
    static void set(const osg::NodePtr &node, const std::vector<qxTransformState> &states,
                    int selected);
    /// Moves the node into the state and remembers that it is selected. False, and nothing changes,
    /// when the node has no such state or its core is no transform.
    static bool select(const osg::NodePtr &node, int index);

    /// Whether the node stands in the state that was selected last; false when none was.
    static bool isInSelected(const osg::NodePtr &node);

    /// The matrix of a transform with components that was put into the pose.
    static osg::Matrix shown(const osg::Matrix &pose);
    /// Puts translation, rotation, scale and what belongs to them in place of the transform's own.
    /// A pose that cannot be taken apart, because its numbers are too large, moves nothing.
    static void setPose(const osg::ComponentTransformPtr &transform, const osg::Matrix &pose);
};
