#pragma once

/// \file
/// MaterialDrawable by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGDrawableFields.h>

namespace osg {

class MaterialDrawable;
/// Null at first. Converts to DrawablePtr; down from there by dcast().
typedef FCPtr<DrawablePtr, MaterialDrawable> MaterialDrawablePtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(MaterialDrawablePtr, MaterialDrawablePtr)

} // namespace osg
