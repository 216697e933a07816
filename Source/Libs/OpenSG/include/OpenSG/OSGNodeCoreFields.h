#pragma once

/// \file
/// NodeCore by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class NodeCore;
/// Null at first. Converts to AttachmentContainerPtr; down from there by dcast().
typedef FCPtr<AttachmentContainerPtr, NodeCore> NodeCorePtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(NodeCorePtr, NodeCorePtr)

} // namespace osg
