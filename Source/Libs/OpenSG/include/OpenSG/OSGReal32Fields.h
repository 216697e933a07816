#pragma once

/// \file
/// Fields that hold single-precision numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Real32, Real32)

} // namespace osg
