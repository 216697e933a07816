#pragma once

/// \file
/// Fields that hold vectors of 3 coordinates.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Vec3f, Vec3f)

} // namespace osg
