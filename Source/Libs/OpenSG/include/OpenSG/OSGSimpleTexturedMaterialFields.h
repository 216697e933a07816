#pragma once

/// \file
/// SimpleTexturedMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGSimpleMaterialFields.h>

namespace osg {

class SimpleTexturedMaterial;
/// Null at first. Converts to SimpleMaterialPtr; down from there by dcast().
typedef FCPtr<SimpleMaterialPtr, SimpleTexturedMaterial> SimpleTexturedMaterialPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(SimpleTexturedMaterialPtr, SimpleTexturedMaterialPtr)

} // namespace osg
