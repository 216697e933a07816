#pragma once

/// \file
/// Fields that hold truth values.

#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(bool, Bool)

} // namespace osg
