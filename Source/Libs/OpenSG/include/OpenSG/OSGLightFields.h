#pragma once

/// \file
/// Light by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class Light;
/// Null at first. Converts to GroupPtr; down from there by dcast().
typedef FCPtr<GroupPtr, Light> LightPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(LightPtr, LightPtr)

} // namespace osg
