#pragma once

/// \file
/// Fields that hold Int16 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Int16, Int16)

} // namespace osg
