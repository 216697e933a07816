#pragma once

/// \file
/// SimpleMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGChunkMaterialFields.h>

namespace osg {

class SimpleMaterial;
typedef FCPtr<ChunkMaterialPtr, SimpleMaterial> SimpleMaterialPtr;

OSG_FIELD_TYPEDEFS(SimpleMaterialPtr, SimpleMaterialPtr)

} // namespace osg
