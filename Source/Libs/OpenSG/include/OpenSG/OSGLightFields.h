#pragma once

/// \file
/// Light by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class Light;
typedef FCPtr<GroupPtr, Light> LightPtr;

OSG_FIELD_TYPEDEFS(LightPtr, LightPtr)

} // namespace osg
