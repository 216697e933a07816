#pragma once

/// \file
/// Fields that hold colours of 3 components.

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGMField.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Color3f, Color3f)

} // namespace osg
