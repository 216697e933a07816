#include "Files/Gltf/Export/qxGltfCompressPicture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <algorithm>

namespace {

const int _longestSide = 2048;
const int _colourQuality = 90;
const int _lossless = 100; // of Qt's writer

bool isOpaque(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return true;
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        if (!std::all_of(line, line + pixels.width(),
                         [](QRgb pixel) { return qAlpha(pixel) == 255; }))
            return false;
    }
    return true;
}

/// The colours as they are, also where nothing of them is seen.
QImage withoutAlpha(const QImage &image)
{
    QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    pixels.reinterpretAsFormat(QImage::Format_RGB32);
    return pixels;
}

QImage scaled(const QImage &image)
{
    if (std::max(image.width(), image.height()) <= _longestSide)
        return image;
    return image.scaled(_longestSide, _longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QByteArray qxGltfCompressPicture(const QByteArray &bytes, qxGltfPictureContent content)
{
    QByteArray encoded = bytes;
    QBuffer from(&encoded);
    QImage image = QImageReader(&from).read();
    if (image.isNull())
        return bytes;
    const bool hasAlpha = content != qxGltfPictureContent::Colours && !isOpaque(image);
    if (hasAlpha && content == qxGltfPictureContent::Numbers)
        return bytes; // the format forgets what is under alpha 0
    image = scaled(hasAlpha ? image.convertToFormat(QImage::Format_ARGB32) : withoutAlpha(image));
    QByteArray result;
    QBuffer to(&result);
    QImageWriter writer(&to, "webp");
    writer.setQuality(content == qxGltfPictureContent::Numbers ? _lossless : _colourQuality);
    return writer.write(image) && result.size() < bytes.size() ? result : bytes;
}
