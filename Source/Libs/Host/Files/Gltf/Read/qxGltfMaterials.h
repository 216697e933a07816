#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGRefPtr.h>

#include <QMap>

#include <vector>

struct qxGltfModel;

typedef osg::RefPtr<osg::MaterialPtr> qxGltfMaterialRef;

/// The materials of the file in its order, with their textures. A picture that cannot be had is a
/// warning in the model, its material shows without it.
/// Those that share a name are made distinguishable. A material neither glows nor is metallic where
/// a picture that is not drawn says how much.
std::vector<qxGltfMaterialRef> qxGltfMaterials(qxGltfModel &model);
/// The kinds of pictures that are not drawn, and how many of these materials have one.
QMap<QString, int> qxGltfHiddenPictures(const qxJson &materials);
/// The name of the material of primitives that state none, unless another one has it.
constexpr const char *qxGltfDefaultName = "Default Material";
/// The material of primitives that state none.
qxGltfMaterialRef qxGltfDefaultMaterial();
