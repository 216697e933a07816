#pragma once

/// \file
/// Fields that hold truth values.

#include <OpenSG/OSGMField.h>

namespace osg {

OSG_FIELD_TYPEDEFS(bool, Bool)

} // namespace osg
