#pragma once

#include <QByteArray>

/// What a picture is used for; a later one needs what earlier ones need.
enum class qxGltfPictureContent {
    Colours, ///< its alpha is not used
    ColoursAndAlpha,
    Numbers ///< every channel, exactly
};

/// The encoded picture as WebP, its longer side at most 2048; numbers without loss. The picture as
/// it is where that would be larger or would lose something, or cannot be written.
QByteArray qxGltfCompressPicture(const QByteArray &bytes, qxGltfPictureContent content);
