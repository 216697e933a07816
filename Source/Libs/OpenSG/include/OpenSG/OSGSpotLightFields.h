#pragma once

/// \file
/// SpotLight by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGPointLightFields.h>

namespace osg {

class SpotLight;
/// Null at first. Converts to PointLightPtr; down from there by dcast().
typedef FCPtr<PointLightPtr, SpotLight> SpotLightPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(SpotLightPtr, SpotLightPtr)

} // namespace osg
