#pragma once

/// \file
/// Fields that hold rotations.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGQuaternion.h>

namespace osg {

OSG_FIELD_TYPEDEFS(Quaternion, Quaternion)

} // namespace osg
