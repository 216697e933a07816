#pragma once

#include "Files/qxGltfJson.h"

/// Adds the viewpoints from `first` on to the JSON of a file, which has those before: each as a
/// camera on a node of its own at the top of that scene. The node has no name, so that variants
/// cannot mean it.
void qxGltfAddViewpoints(qxJson &json, int scene, int first);
