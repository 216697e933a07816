#pragma once

/// \file
/// Geometry by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialDrawableFields.h>

namespace osg {

class Geometry;
typedef FCPtr<MaterialDrawablePtr, Geometry> GeometryPtr;

OSG_FIELD_TYPEDEFS(GeometryPtr, GeometryPtr)

} // namespace osg
