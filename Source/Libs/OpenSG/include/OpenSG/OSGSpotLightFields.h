#pragma once

/// \file
/// SpotLight by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGPointLightFields.h>

namespace osg {

class SpotLight;
typedef FCPtr<PointLightPtr, SpotLight> SpotLightPtr;

OSG_FIELD_TYPEDEFS(SpotLightPtr, SpotLightPtr)

} // namespace osg
