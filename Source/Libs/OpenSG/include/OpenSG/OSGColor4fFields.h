#pragma once

/// \file
/// Fields that hold colours of 4 components.

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Color4f, Color4f)

} // namespace osg
