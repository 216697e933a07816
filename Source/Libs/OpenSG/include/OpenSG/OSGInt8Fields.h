#pragma once

/// \file
/// Fields that hold Int8 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Int8, Int8)

} // namespace osg
