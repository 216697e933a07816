#pragma once

/// \file
/// NodeCore by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class NodeCore;
typedef FCPtr<AttachmentContainerPtr, NodeCore> NodeCorePtr;

OSG_FIELD_TYPEDEFS(NodeCorePtr, NodeCorePtr)

} // namespace osg
