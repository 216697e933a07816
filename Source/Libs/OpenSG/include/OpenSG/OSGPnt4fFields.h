#pragma once

/// \file
/// Fields that hold points of 4 coordinates.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Pnt4f, Pnt4f)

} // namespace osg
