#pragma once

/// \file
/// Switch by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class Switch;
typedef FCPtr<GroupPtr, Switch> SwitchPtr;

OSG_FIELD_TYPEDEFS(SwitchPtr, SwitchPtr)

} // namespace osg
