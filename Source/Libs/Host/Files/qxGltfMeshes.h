#pragma once

#include "Files/qxGltfMaterials.h"

#include <OpenSG/OSGGeometry.h>

typedef osg::RefPtr<osg::GeometryPtr> qxGltfGeometryRef;
/// The geometries of one mesh; null for a primitive without positions.
typedef std::vector<qxGltfGeometryRef> qxGltfMeshParts;

/// The meshes of the file in its order, one geometry core per primitive, named as the mesh.
/// Throws qxGltfError naming mesh and primitive when the data cannot be shown.
std::vector<qxGltfMeshParts> qxGltfMeshes(qxGltfModel &model,
                                          const std::vector<qxGltfMaterialRef> &materials);

/// How many triangles the meshes of the file have.
long long qxGltfTriangles(const qxGltfModel &model);
