#pragma once

/// \file
/// StateChunk by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentFields.h>

namespace osg {

class StateChunk;
typedef FCPtr<AttachmentPtr, StateChunk> StateChunkPtr;

OSG_FIELD_TYPEDEFS(StateChunkPtr, StateChunkPtr)

} // namespace osg
