#pragma once

/// \file
/// Transform by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class Transform;
/// Null at first. Converts to GroupPtr; down from there by dcast().
typedef FCPtr<GroupPtr, Transform> TransformPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(TransformPtr, TransformPtr)

} // namespace osg
