#pragma once

/// \file
/// PointLight by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGLightFields.h>

namespace osg {

class PointLight;
/// Null at first. Converts to LightPtr; down from there by dcast().
typedef FCPtr<LightPtr, PointLight> PointLightPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(PointLightPtr, PointLightPtr)

} // namespace osg
