#pragma once

/// \file
/// Fields that hold UInt32 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(UInt32, UInt32)

} // namespace osg
