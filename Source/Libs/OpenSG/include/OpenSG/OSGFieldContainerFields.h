#pragma once

/// \file
/// Fields that hold pointers to any container.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(FieldContainerPtr, FieldContainerPtr)

} // namespace osg
