#pragma once

/// \file
/// Fields that hold points of 2 coordinates.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Pnt2f, Pnt2f)

} // namespace osg
