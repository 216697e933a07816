#pragma once

/// \file
/// MaterialChunk by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGStateChunkFields.h>

namespace osg {

class MaterialChunk;
/// Null at first. Converts to StateChunkPtr; down from there by dcast().
typedef FCPtr<StateChunkPtr, MaterialChunk> MaterialChunkPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(MaterialChunkPtr, MaterialChunkPtr)

} // namespace osg
