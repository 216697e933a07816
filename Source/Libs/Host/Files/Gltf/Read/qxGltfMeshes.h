#pragma once

#include "Files/Gltf/Read/qxGltfMaterials.h"

#include <OpenSG/OSGGeometry.h>

typedef osg::RefPtr<osg::GeometryPtr> qxGltfGeometryRef;
/// The geometries of one mesh; null for a primitive without positions.
typedef std::vector<qxGltfGeometryRef> qxGltfMeshParts;

/// The meshes of the file in its order, one geometry core per primitive, named as the mesh.
/// Up to six sets of texture coordinates become TexCoords to TexCoords5.
/// Throws qxGltfError naming mesh and primitive when the data cannot be shown.
std::vector<qxGltfMeshParts> qxGltfMeshes(qxGltfModel &model,
                                          const std::vector<qxGltfMaterialRef> &materials);

/// The name of a mesh's part, numbered from 1: the name of the mesh, from the second part on with
/// the number. Empty if the mesh's name is null.
std::string qxGltfPartName(const char *mesh, std::size_t number);

/// How many triangles the meshes of the file have.
long long qxGltfTriangles(const qxJson &document);
