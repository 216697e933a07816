#pragma once

/// \file
/// ChunkMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

class ChunkMaterial;
typedef FCPtr<MaterialPtr, ChunkMaterial> ChunkMaterialPtr;

OSG_FIELD_TYPEDEFS(ChunkMaterialPtr, ChunkMaterialPtr)

} // namespace osg
