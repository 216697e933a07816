#pragma once

/// \file
/// SwitchMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

class SwitchMaterial;
typedef FCPtr<MaterialPtr, SwitchMaterial> SwitchMaterialPtr;

OSG_FIELD_TYPEDEFS(SwitchMaterialPtr, SwitchMaterialPtr)

} // namespace osg
