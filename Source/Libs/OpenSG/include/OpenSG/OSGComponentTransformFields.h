#pragma once

/// \file
/// ComponentTransform by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGTransformFields.h>

namespace osg {

class ComponentTransform;
/// Null at first. Converts to TransformPtr; down from there by dcast().
typedef FCPtr<TransformPtr, ComponentTransform> ComponentTransformPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(ComponentTransformPtr, ComponentTransformPtr)

} // namespace osg
