#pragma once

/// \file
/// Fields that hold UInt8 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(UInt8, UInt8)

} // namespace osg
