#pragma once

#include "Light/qxLightPicture.h"

#include <QByteArray>
#include <QSize>

class qxMemoryBudget;

/// Reads the channels R, G and B, or Y alone, of the first part of an OpenEXR picture, in full
/// size. Throws qxGltfError.
qxLightPicture qxReadExr(const QByteArray &bytes, qxMemoryBudget &budget);
/// Its size in pixels, from its header alone. Throws qxGltfError as well.
QSize qxExrSize(const QByteArray &bytes);
