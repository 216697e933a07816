#pragma once

/// \file
/// Drawable by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGNodeCoreFields.h>

namespace osg {

class Drawable;
/// Null at first. Converts to NodeCorePtr; down from there by dcast().
typedef FCPtr<NodeCorePtr, Drawable> DrawablePtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(DrawablePtr, DrawablePtr)

} // namespace osg
