#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QStringList>

/// The extensions of glTF that the host reads. What others say is kept in the file, but not shown.
/// Docs/SceneFiles.md lists them for users.
const QStringList &qxGltfUnderstoodExtensions();

/// The extensions in the list of that name, "extensionsUsed" or "extensionsRequired", that are not
/// among them.
QStringList qxGltfNotUnderstood(const qxJson &document, const char *list);
/// The names in a list of extensions; what is no text is left out.
QStringList qxGltfExtensionNames(const qxJson &document, const char *list);
