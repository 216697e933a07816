#pragma once

/// \file
/// Group by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGNodeCoreFields.h>

namespace osg {

class Group;
/// Null at first. Converts to NodeCorePtr; down from there by dcast().
typedef FCPtr<NodeCorePtr, Group> GroupPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(GroupPtr, GroupPtr)

} // namespace osg
