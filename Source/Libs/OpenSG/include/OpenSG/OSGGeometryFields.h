#pragma once

/// \file
/// Geometry by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialDrawableFields.h>

namespace osg {

class Geometry;
/// Null at first. Converts to MaterialDrawablePtr; down from there by dcast().
typedef FCPtr<MaterialDrawablePtr, Geometry> GeometryPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(GeometryPtr, GeometryPtr)

} // namespace osg
