#pragma once

#include "Light/qxLightPicture.h"

class qxRenderGroup;

/// A picture of all directions as the middle of `scene` sees the surroundings, each surface in its
/// own colour; where there is nothing, the studio.
qxLightPicture qxTakeLightPicture(const qxRenderGroup &surroundings, const qxBox &scene);
