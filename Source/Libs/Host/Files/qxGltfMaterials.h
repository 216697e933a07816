#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGRefPtr.h>

#include <vector>

struct qxGltfModel;

typedef osg::RefPtr<osg::MaterialPtr> qxGltfMaterialRef;

/// The materials of the file in its order, with their textures. A picture that cannot be had is a
/// warning in the model, its material shows without it.
/// Those that share a name are made distinguishable.
std::vector<qxGltfMaterialRef> qxGltfMaterials(qxGltfModel &model);
/// The material of primitives that state none.
qxGltfMaterialRef qxGltfDefaultMaterial();
