#pragma once

/// \file
/// DirectionalLight by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGLightFields.h>

namespace osg {

class DirectionalLight;
/// Null at first. Converts to LightPtr; down from there by dcast().
typedef FCPtr<LightPtr, DirectionalLight> DirectionalLightPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(DirectionalLightPtr, DirectionalLightPtr)

} // namespace osg
