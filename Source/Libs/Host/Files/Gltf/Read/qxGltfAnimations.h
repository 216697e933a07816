#pragma once

#include "Animation/qxAnimationClip.h"

class qxGltfNodes;
struct qxGltfModel;

/// The animations of the file in its order, for the nodes of the shown scene. Channels of nodes
/// that are not shown, and of what extensions animate, are left out; a malformed channel is left
/// out with a warning.
std::vector<qxAnimationClip> qxGltfAnimations(qxGltfModel &model, const qxGltfNodes &nodes);
