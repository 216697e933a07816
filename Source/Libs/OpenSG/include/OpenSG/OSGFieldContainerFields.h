#pragma once

/// \file
/// Fields that hold pointers to any container.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(FieldContainerPtr, FieldContainerPtr)

} // namespace osg
