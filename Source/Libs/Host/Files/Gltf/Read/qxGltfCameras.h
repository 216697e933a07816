#pragma once

#include "qxUberCameraPool.h"

#include <vector>

struct qxGltfModel;
class qxGltfNodes;
struct qxGltfOrigin;

/// The cameras of the shown scene in scene order, where the nodes stand now. A camera is named by
/// its node, else by itself; the extras of the node may say otherwise about both.
/// `origin` learns which nodes they are.
std::vector<qxUberCamera> qxGltfCameras(qxGltfModel &model, const qxGltfNodes &nodes,
                                        qxGltfOrigin &origin);
