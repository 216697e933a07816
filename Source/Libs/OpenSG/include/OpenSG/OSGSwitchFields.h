#pragma once

/// \file
/// Switch by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class Switch;
/// Null at first. Converts to GroupPtr; down from there by dcast().
typedef FCPtr<GroupPtr, Switch> SwitchPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(SwitchPtr, SwitchPtr)

} // namespace osg
