#pragma once

/// \file
/// Fields that hold rotations.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGQuaternion.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Quaternion, Quaternion)

} // namespace osg
