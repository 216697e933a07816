#pragma once

/// \file
/// Fields that hold Int64 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(Int64, Int64)

} // namespace osg
