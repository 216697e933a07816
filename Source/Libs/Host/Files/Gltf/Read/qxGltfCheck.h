#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

/// Refuses documents that the reader cannot handle. After it values have the right types, indices
/// are valid, nodes form trees, and data are within their buffers. Throws qxGltfError with the
/// first fault.
void qxGltfCheck(const qxJson &document);

/// The part of qxGltfCheck about scenes and nodes.
void qxGltfCheckNodes(const qxJson &document);
/// The part of qxGltfCheck about buffers, buffer views and accessors.
void qxGltfCheckData(const qxJson &document);
/// The part about a buffer view that is compressed.
void qxGltfCheckMeshopt(const QString &called, const qxJson &view, const qxJson &document);
/// The part about a primitive that is compressed.
void qxGltfCheckDraco(const QString &called, const qxJson &primitive, const qxJson &document);
/// The part about skins, and about the morph targets of meshes and nodes.
void qxGltfCheckSkins(const qxJson &document);
/// The part about the morph targets of a primitive.
void qxGltfCheckTargets(const QString &called, const qxJson &primitive, const qxJson &document);
