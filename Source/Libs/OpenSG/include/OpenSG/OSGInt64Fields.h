#pragma once

/// \file
/// Fields that hold Int64 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Int64, Int64)

} // namespace osg
