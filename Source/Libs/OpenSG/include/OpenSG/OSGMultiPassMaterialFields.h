#pragma once

/// \file
/// MultiPassMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGMaterialFields.h>

namespace osg {

class MultiPassMaterial;
typedef FCPtr<MaterialPtr, MultiPassMaterial> MultiPassMaterialPtr;

OSG_FIELD_TYPEDEFS(MultiPassMaterialPtr, MultiPassMaterialPtr)

} // namespace osg
