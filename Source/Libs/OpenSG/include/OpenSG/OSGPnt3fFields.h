#pragma once

/// \file
/// Fields that hold points of 3 coordinates.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Pnt3f, Pnt3f)

} // namespace osg
