#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

struct qxGltfOrigin;
struct qxGltfState;
struct qxUberCamera;

/// A viewpoint as a scene file lists it among its cameras.
qxJson qxGltfCamera(const qxUberCamera &camera);
/// Keeps name and pose of the viewpoints from the file if their nodes were renamed or moved, with
/// entries at the nodes.
void qxGltfKeepViewpoints(qxJson &json, const qxGltfOrigin &origin, const qxGltfState &after);
/// Adds the viewpoints from `first` on to the JSON of a file, which has the earlier ones: each as a
/// camera on a separate root node of that scene. The node has no name, so that variants cannot find
/// it.
void qxGltfAddViewpoints(qxJson &json, int scene, int first);
