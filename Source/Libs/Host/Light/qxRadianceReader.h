#pragma once

#include "Light/qxLightPicture.h"

#include <QByteArray>
#include <QSize>

class qxMemoryBudget;

/// Reads a picture of the Radiance format (Ward: Real Pixels, Graphics Gems II, 1991), with or
/// without run-length encoding. Its lines about exposure change nothing. Throws qxGltfError.
qxLightPicture qxReadRadiance(const QByteArray &bytes, qxMemoryBudget &budget);
/// Its size in pixels, from its header alone. Throws qxGltfError as well.
QSize qxRadianceSize(const QByteArray &bytes);
