#pragma once

/// \file
/// Fields that hold bounding volumes.

#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(DynamicVolume, DynamicVolume)

} // namespace osg
