#pragma once

/// \file
/// Drawable by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGNodeCoreFields.h>

namespace osg {

class Drawable;
typedef FCPtr<NodeCorePtr, Drawable> DrawablePtr;

OSG_FIELD_TYPEDEFS(DrawablePtr, DrawablePtr)

} // namespace osg
