#pragma once

/// \file
/// Fields that hold bounding volumes.

#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(DynamicVolume, DynamicVolume)

} // namespace osg
