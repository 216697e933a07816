#pragma once

/// \file
/// PointLight by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGLightFields.h>

namespace osg {

class PointLight;
typedef FCPtr<LightPtr, PointLight> PointLightPtr;

OSG_FIELD_TYPEDEFS(PointLightPtr, PointLightPtr)

} // namespace osg
