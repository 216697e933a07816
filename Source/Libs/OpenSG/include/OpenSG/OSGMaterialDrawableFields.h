#pragma once

/// \file
/// MaterialDrawable by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGDrawableFields.h>

namespace osg {

class MaterialDrawable;
typedef FCPtr<DrawablePtr, MaterialDrawable> MaterialDrawablePtr;

OSG_FIELD_TYPEDEFS(MaterialDrawablePtr, MaterialDrawablePtr)

} // namespace osg
