#pragma once

/// \file
/// Fields that hold vectors of 2 coordinates.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Vec2f, Vec2f)

} // namespace osg
