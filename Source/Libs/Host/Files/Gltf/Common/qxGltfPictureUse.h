#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

/// How a material of a file uses the picture of a role (qxSurface::PictureRole): an object with the
/// index of a texture; null without.
const qxJson &qxGltfPictureUse(const qxJson &material, std::size_t role);
