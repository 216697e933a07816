#pragma once

#include "Files/Gltf/Common/qxGltfState.h"

/// Whether the core is a switch over children.
bool qxGltfIsSwitch(const osg::NodeCorePtr &core);
/// Whether the core has a meaning of its own and puts its children nowhere, so that the transform
/// of its node is that of an unnamed node above it.
bool qxGltfNeedsPose(const osg::NodeCorePtr &core);
/// Whether the core is a transform, but not a transform switch.
bool qxGltfIsPlainTransform(const osg::NodeCorePtr &core);

/// Where a transform core puts its children.
qxGltfPose qxGltfPoseOf(const osg::NodeCorePtr &core);
/// Describes what the core of the node says. Throws qxGltfError when a scene file has no form for
/// it.
void qxGltfDescribeCore(const osg::NodePtr &node, qxGltfNodeState &state);
/// Describes the named transform states of the node.
void qxGltfDescribeTransformStates(const osg::NodePtr &node, qxGltfTransformStates &result);
