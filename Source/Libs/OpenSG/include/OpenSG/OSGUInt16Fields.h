#pragma once

/// \file
/// Fields that hold UInt16 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(UInt16, UInt16)

} // namespace osg
