#pragma once

#include "qxUberCameraPool.h"

#include <vector>

struct qxGltfModel;
class qxGltfNodes;
struct qxGltfOrigin;

/// The cameras of the shown scene in scene order, with the present poses of their nodes. A camera
/// has the name of its node, else its own; the extras of the node can override pose and name. Their
/// nodes are recorded in `origin`.
std::vector<qxUberCamera> qxGltfCameras(qxGltfModel &model, const qxGltfNodes &nodes,
                                        qxGltfOrigin &origin);
