#pragma once

#include "OSGSwitchComponentTransform.h"

#include <OpenSG/OSGNodeCore.h>

#include <vector>

namespace tinygltf {
class Node;
}

/// Whether the node states where it stands.
bool qxGltfHasTransform(const tinygltf::Node &node);
/// A transform core for the matrix or for the translation, rotation and scale that the node states;
/// null when it states none.
osg::NodeCorePtr qxGltfTransform(const tinygltf::Node &node);
/// Takes translation, rotation and scale of the node; what it does not state becomes the identity.
void qxGltfSetComponents(const osg::ComponentTransformPtr &transform, const tinygltf::Node &node);
/// A transform switch with these states, of which it shows `choice`. One without that state stands
/// as the node says.
osg::SwitchComponentTransformPtr qxGltfTransformSwitch(const tinygltf::Node &node,
                                                       const std::vector<osg::Matrix> &states,
                                                       osg::UInt32 choice);
