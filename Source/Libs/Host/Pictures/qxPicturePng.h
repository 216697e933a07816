#pragma once

#include "Render/qxPicture.h"

#include <QByteArray>
#include <QImage>

/// Finished pictures as others read them.
namespace qxPicturePng {

/// The top row first; without alpha if `isOpaque`.
QImage image(const qxPicture &picture, bool isOpaque);
/// The bytes of a PNG, the same ones for the same picture; empty for an empty picture.
QByteArray bytes(const qxPicture &picture, bool isOpaque);

} // namespace qxPicturePng
