#pragma once

/// \file
/// Material by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class Material;
typedef FCPtr<AttachmentContainerPtr, Material> MaterialPtr;

OSG_FIELD_TYPEDEFS(MaterialPtr, MaterialPtr)

} // namespace osg
