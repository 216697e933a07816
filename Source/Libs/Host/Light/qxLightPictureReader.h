#pragma once

#include "Light/qxLightPicture.h"

#include <QByteArray>
#include <QSize>

class qxMemoryBudget;

/// The light that a Radiance picture (.hdr, .pic) or an OpenEXR picture shows, whatever its name.
/// Throws qxGltfError with the reason when it cannot be read, or is larger than 16384 pixels.
qxLightPicture qxReadLightPicture(const QByteArray &bytes, qxMemoryBudget &budget);
/// Its size in pixels, from its header alone. Throws qxGltfError as well.
QSize qxLightPictureSize(const QByteArray &bytes);
