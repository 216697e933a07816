#pragma once

/// \file
/// Fields that hold UInt32 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(UInt32, UInt32)

} // namespace osg
