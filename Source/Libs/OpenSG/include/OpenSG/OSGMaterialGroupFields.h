#pragma once

/// \file
/// MaterialGroup by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class MaterialGroup;
/// Null at first. Converts to GroupPtr; down from there by dcast().
typedef FCPtr<GroupPtr, MaterialGroup> MaterialGroupPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(MaterialGroupPtr, MaterialGroupPtr)

} // namespace osg
