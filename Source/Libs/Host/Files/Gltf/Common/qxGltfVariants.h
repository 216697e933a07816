#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QByteArray>

/// The position of the scene that is shown, -1 when the file has none.
/// Only for documents that qxGltfCheck accepted.
int qxGltfShownScene(const qxJson &document);
/// The variants document that the shown scene, or else the file itself, holds; empty for none.
QByteArray qxGltfVariantsIn(const qxJson &document, int scene);
/// Puts it there unless the same is there; an empty one is taken out.
void qxGltfSetVariants(qxJson &document, int scene, const QByteArray &variants);
