#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

struct qxGltfModel;

typedef osg::RefPtr<osg::MaterialPtr> qxGltfMaterialRef;

/// The materials of the file in its order, with their textures. A picture that cannot be read is a
/// warning in the model and missing in its material. Materials with the same name get unique names.
std::vector<qxGltfMaterialRef> qxGltfMaterials(qxGltfModel &model);
/// The name of the material of primitives that state none, unless another one has it.
constexpr const char *qxGltfDefaultName = "Default Material";
/// The material of primitives that state none.
qxGltfMaterialRef qxGltfDefaultMaterial();
