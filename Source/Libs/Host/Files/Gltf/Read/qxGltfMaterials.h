#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGRefPtr.h>

#include <QMap>

#include <vector>

struct qxGltfModel;

typedef osg::RefPtr<osg::MaterialPtr> qxGltfMaterialRef;

/// The materials of the file in its order, with their textures. A picture that cannot be read is a
/// warning in the model and missing in its material. Materials with the same name get unique names.
/// A material whose metallic or emissive factor depends on a picture that is not drawn is not
/// metallic or does not emit.
std::vector<qxGltfMaterialRef> qxGltfMaterials(qxGltfModel &model);
/// The kinds of pictures that are not drawn, and how many of these materials have one.
QMap<QString, int> qxGltfHiddenPictures(const qxJson &materials);
/// The name of the material of primitives that state none, unless another one has it.
constexpr const char *qxGltfDefaultName = "Default Material";
/// The material of primitives that state none.
qxGltfMaterialRef qxGltfDefaultMaterial();
