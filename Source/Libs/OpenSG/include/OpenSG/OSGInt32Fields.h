#pragma once

/// \file
/// Fields that hold Int32 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Int32, Int32)

} // namespace osg
