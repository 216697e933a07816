#pragma once

/// \file
/// Fields that hold UInt64 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(UInt64, UInt64)

} // namespace osg
