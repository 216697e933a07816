#pragma once

/// \file
/// Transform by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class Transform;
typedef FCPtr<GroupPtr, Transform> TransformPtr;

OSG_FIELD_TYPEDEFS(TransformPtr, TransformPtr)

} // namespace osg
