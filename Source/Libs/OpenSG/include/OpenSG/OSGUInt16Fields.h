#pragma once

/// \file
/// Fields that hold UInt16 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(UInt16, UInt16)

} // namespace osg
