#pragma once

/// \file
/// Group by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGNodeCoreFields.h>

namespace osg {

class Group;
typedef FCPtr<NodeCorePtr, Group> GroupPtr;

OSG_FIELD_TYPEDEFS(GroupPtr, GroupPtr)

} // namespace osg
