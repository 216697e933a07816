#pragma once

#include "Light/qxLightPicture.h"

#include <QByteArray>

/// The picture as a file of the Radiance format (Ward: Real Pixels, Graphics Gems II, 1991), with
/// run-length encoding. The brightest channel of a pixel has a precision of 8 bits. Light that is
/// not finite, or negative, counts as none.
QByteArray qxWriteRadiance(const qxLightPicture &picture);
