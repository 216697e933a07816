#pragma once

/// \file
/// DirectionalLight by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGLightFields.h>

namespace osg {

class DirectionalLight;
typedef FCPtr<LightPtr, DirectionalLight> DirectionalLightPtr;

OSG_FIELD_TYPEDEFS(DirectionalLightPtr, DirectionalLightPtr)

} // namespace osg
