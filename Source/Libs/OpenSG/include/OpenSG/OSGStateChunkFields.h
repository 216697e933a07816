#pragma once

/// \file
/// StateChunk by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentFields.h>

namespace osg {

class StateChunk;
/// Null at first. Converts to AttachmentPtr; down from there by dcast().
typedef FCPtr<AttachmentPtr, StateChunk> StateChunkPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(StateChunkPtr, StateChunkPtr)

} // namespace osg
