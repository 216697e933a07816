#pragma once

/// \file
/// MaterialGroup by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class MaterialGroup;
typedef FCPtr<GroupPtr, MaterialGroup> MaterialGroupPtr;

OSG_FIELD_TYPEDEFS(MaterialGroupPtr, MaterialGroupPtr)

} // namespace osg
