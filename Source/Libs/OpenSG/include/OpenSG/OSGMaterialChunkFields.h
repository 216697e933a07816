#pragma once

/// \file
/// MaterialChunk by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGStateChunkFields.h>

namespace osg {

class MaterialChunk;
typedef FCPtr<StateChunkPtr, MaterialChunk> MaterialChunkPtr;

OSG_FIELD_TYPEDEFS(MaterialChunkPtr, MaterialChunkPtr)

} // namespace osg
