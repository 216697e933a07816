#pragma once

/// \file
/// SwitchMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

class SwitchMaterial;
/// Null at first. Converts to MaterialPtr; down from there by dcast().
typedef FCPtr<MaterialPtr, SwitchMaterial> SwitchMaterialPtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(SwitchMaterialPtr, SwitchMaterialPtr)

} // namespace osg
