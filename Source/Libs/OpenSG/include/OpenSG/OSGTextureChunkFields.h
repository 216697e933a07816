#pragma once

/// \file
/// TextureChunk by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGStateChunkFields.h>

namespace osg {

class TextureChunk;
typedef FCPtr<StateChunkPtr, TextureChunk> TextureChunkPtr;

OSG_FIELD_TYPEDEFS(TextureChunkPtr, TextureChunkPtr)

} // namespace osg
