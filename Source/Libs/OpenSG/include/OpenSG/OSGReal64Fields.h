#pragma once

/// \file
/// Fields that hold double-precision numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Real64, Real64)

} // namespace osg
