#pragma once

/// \file
/// Fields that hold Int16 numbers.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(Int16, Int16)

} // namespace osg
