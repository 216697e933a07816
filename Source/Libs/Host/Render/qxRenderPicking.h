#pragma once

#include "Render/qxRay.h"
#include "Render/qxRenderGroup.h"

/// The id of the node whose surface the ray meets first, 0 when it meets none. Translucent surfaces
/// count, those that a texture cuts out count as a whole.
osg::UInt32 qxNodeAlong(const qxRay &ray, const qxRenderGroup &group);
/// How far away that surface is; where the ray ends when it meets none.
float qxDistanceAlong(const qxRay &ray, const qxRenderGroup &group);
