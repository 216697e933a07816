#pragma once

#include "Files/Gltf/Read/qxGltfMaterials.h"

#include <OpenSG/OSGGeometry.h>

typedef osg::RefPtr<osg::GeometryPtr> qxGltfGeometryRef;
/// The geometries of one mesh; null for a primitive without positions.
typedef std::vector<qxGltfGeometryRef> qxGltfMeshParts;

/// The meshes of the file in its order, one geometry core per primitive, named as the mesh.
/// Throws qxGltfError naming mesh and primitive when the data cannot be shown.
std::vector<qxGltfMeshParts> qxGltfMeshes(qxGltfModel &model,
                                          const std::vector<qxGltfMaterialRef> &materials);

/// The name of the part of that number, from 1 on, of a mesh of that name, which may be null. From
/// the second part on a number follows, so that nodes that show the parts can be told apart. Empty
/// for a part without a name.
std::string qxGltfPartName(const char *mesh, std::size_t number);

/// How many triangles the meshes of the file have.
long long qxGltfTriangles(const qxGltfModel &model);
