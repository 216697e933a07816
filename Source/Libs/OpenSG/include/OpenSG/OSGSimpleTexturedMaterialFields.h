#pragma once

/// \file
/// SimpleTexturedMaterial by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGSimpleMaterialFields.h>

namespace osg {

class SimpleTexturedMaterial;
typedef FCPtr<SimpleMaterialPtr, SimpleTexturedMaterial> SimpleTexturedMaterialPtr;

OSG_FIELD_TYPEDEFS(SimpleTexturedMaterialPtr, SimpleTexturedMaterialPtr)

} // namespace osg
