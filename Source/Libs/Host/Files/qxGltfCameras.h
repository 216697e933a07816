#pragma once

#include "qxUberCameraPool.h"

#include <vector>

struct qxGltfModel;
class qxGltfNodes;

/// The cameras of the shown scene in scene order, where the nodes stand now. A camera is named by
/// its node, else by itself.
std::vector<qxUberCamera> qxGltfCameras(const qxGltfModel &model, const qxGltfNodes &nodes);
