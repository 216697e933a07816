#pragma once

/// \file
/// Fields that hold UInt8 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(UInt8, UInt8)

} // namespace osg
