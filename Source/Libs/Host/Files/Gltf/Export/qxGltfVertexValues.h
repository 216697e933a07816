#pragma once

#include "Files/Gltf/Export/qxGltfPacked.h"

#include <string>

/// Whether an attribute of vertices is one that scenes show.
bool qxGltfIsShownAttribute(const std::string &name);
/// Makes values of an attribute what glTF demands of them: unit vectors, colours up to 1. False
/// when they are of no use, because some of them are no numbers.
bool qxGltfMendVertices(const std::string &name, qxGltfPacked &values);
/// Whether the type of these values is one that only KHR_mesh_quantization allows.
bool qxGltfIsQuantized(const std::string &name, const qxGltfPacked &values);
