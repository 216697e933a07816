#pragma once

/// \file
/// MaterialPool by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class MaterialPool;
/// Null at first. Converts to GroupPtr; down from there by dcast().
typedef FCPtr<GroupPtr, MaterialPool> MaterialPoolPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(MaterialPoolPtr, MaterialPoolPtr)

} // namespace osg
