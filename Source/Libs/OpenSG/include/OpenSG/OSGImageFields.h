#pragma once

/// \file
/// Image by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class Image;
/// Null at first. Converts to AttachmentContainerPtr; down from there by dcast().
typedef FCPtr<AttachmentContainerPtr, Image> ImagePtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(ImagePtr, ImagePtr)

} // namespace osg
