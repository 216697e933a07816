#pragma once

/// \file
/// TextureChunk by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGStateChunkFields.h>

namespace osg {

class TextureChunk;
/// Null at first. Converts to StateChunkPtr; down from there by dcast().
typedef FCPtr<StateChunkPtr, TextureChunk> TextureChunkPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(TextureChunkPtr, TextureChunkPtr)

} // namespace osg
