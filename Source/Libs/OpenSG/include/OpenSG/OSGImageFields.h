#pragma once

/// \file
/// Image by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class Image;
typedef FCPtr<AttachmentContainerPtr, Image> ImagePtr;

OSG_FIELD_TYPEDEFS(ImagePtr, ImagePtr)

} // namespace osg
