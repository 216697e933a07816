#pragma once

/// \file
/// Fields that hold Int32 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(Int32, Int32)

} // namespace osg
