#pragma once

/// \file
/// Fields that hold double-precision numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(Real64, Real64)

} // namespace osg
