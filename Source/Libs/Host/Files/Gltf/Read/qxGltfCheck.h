#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QStringList>

/// Extensions allowed in "extensionsRequired": the host implements them, or shows nothing that
/// depends on them.
const QStringList &qxGltfUnderstoodExtensions();

/// Refuses documents that the reader cannot handle. After it values have the right types, indices
/// are valid, nodes form trees, and data are within their buffers. Throws qxGltfError with the
/// first fault.
void qxGltfCheck(const qxJson &document);

/// The part of qxGltfCheck about scenes and nodes.
void qxGltfCheckNodes(const qxJson &document);
/// The part of qxGltfCheck about buffers, buffer views and accessors.
void qxGltfCheckData(const qxJson &document);
