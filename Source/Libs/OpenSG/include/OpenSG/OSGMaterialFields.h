#pragma once

/// \file
/// Material by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class Material;
/// Null at first. Converts to AttachmentContainerPtr; down from there by dcast().
typedef FCPtr<AttachmentContainerPtr, Material> MaterialPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(MaterialPtr, MaterialPtr)

} // namespace osg
