#pragma once

/// \file
/// MultiPassMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

class MultiPassMaterial;
/// Null at first. Converts to MaterialPtr; down from there by dcast().
typedef FCPtr<MaterialPtr, MultiPassMaterial> MultiPassMaterialPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(MultiPassMaterialPtr, MultiPassMaterialPtr)

} // namespace osg
