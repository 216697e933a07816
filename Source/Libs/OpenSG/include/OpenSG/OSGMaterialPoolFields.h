#pragma once

/// \file
/// MaterialPool by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGGroupFields.h>

namespace osg {

class MaterialPool;
typedef FCPtr<GroupPtr, MaterialPool> MaterialPoolPtr;

OSG_FIELD_TYPEDEFS(MaterialPoolPtr, MaterialPoolPtr)

} // namespace osg
