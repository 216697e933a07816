#pragma once

/// \file
/// Fields that hold UInt64 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(UInt64, UInt64)

} // namespace osg
