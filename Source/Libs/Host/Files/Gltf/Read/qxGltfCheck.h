#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QStringList>

/// Extensions that may stand in "extensionsRequired": the host shows the scene as they say, or
/// nothing that it shows depends on them.
const QStringList &qxGltfUnderstoodExtensions();

/// Refuses documents that the rest of the reader could trip over: what it accepts has objects where
/// objects belong, indices that exist, nodes that form trees, and data within their buffers.
/// Throws qxGltfError with the first fault.
void qxGltfCheck(const qxJson &document);

/// The part of qxGltfCheck about scenes and nodes.
void qxGltfCheckNodes(const qxJson &document);
/// The part of qxGltfCheck about buffers, buffer views and accessors.
void qxGltfCheckData(const qxJson &document);
