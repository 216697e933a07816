#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

struct qxGltfOrigin;
struct qxGltfState;

/// The viewpoints that came from the file stay as they are when their nodes are renamed or stand
/// elsewhere: then the nodes get entries that say so.
void qxGltfKeepViewpoints(qxJson &json, const qxGltfOrigin &origin, const qxGltfState &after);
/// Adds the viewpoints from `first` on to the JSON of a file, which has those before: each as a
/// camera on a node of its own at the top of that scene. The node has no name, so that variants
/// cannot mean it.
void qxGltfAddViewpoints(qxJson &json, int scene, int first);
