#pragma once

/// \file
/// ChunkMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

class ChunkMaterial;
/// Null at first. Converts to MaterialPtr; down from there by dcast().
typedef FCPtr<MaterialPtr, ChunkMaterial> ChunkMaterialPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(ChunkMaterialPtr, ChunkMaterialPtr)

} // namespace osg
