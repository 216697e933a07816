#pragma once

/// \file
/// SimpleMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGChunkMaterialFields.h>

namespace osg {

class SimpleMaterial;
/// Null at first. Converts to ChunkMaterialPtr; down from there by dcast().
typedef FCPtr<ChunkMaterialPtr, SimpleMaterial> SimpleMaterialPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(SimpleMaterialPtr, SimpleMaterialPtr)

} // namespace osg
