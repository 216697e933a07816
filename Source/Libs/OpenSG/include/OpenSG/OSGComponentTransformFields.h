#pragma once

/// \file
/// ComponentTransform by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGTransformFields.h>

namespace osg {

class ComponentTransform;
typedef FCPtr<TransformPtr, ComponentTransform> ComponentTransformPtr;

OSG_FIELD_TYPEDEFS(ComponentTransformPtr, ComponentTransformPtr)

} // namespace osg
