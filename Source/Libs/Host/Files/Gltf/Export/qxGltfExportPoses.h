#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Common/qxGltfNodeState.h"

/// A pose as glTF allows it, for one node or, where that turns, scales and turns again, for two,
/// the upper one first. Translation, rotation of length 1 and scale each.
std::vector<qxGltfPose> qxGltfExportPoses(const qxGltfPose &pose);
/// Writes such a pose to a node without one.
void qxGltfWritePose(qxJson &node, const qxGltfPose &pose);
