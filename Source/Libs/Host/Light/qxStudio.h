#pragma once

#include "Light/qxLightPicture.h"

/// A photographer's studio in formulas.
namespace qxStudio {

qxLightPicture picture();

} // namespace qxStudio
