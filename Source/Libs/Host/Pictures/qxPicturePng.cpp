#include "Pictures/qxPicturePng.h"

#include <QBuffer>

namespace {

constexpr int DotsPerMeter = 3780; ///< written down in the file; that of a screen would differ

} // namespace

QImage qxPicturePng::image(const qxPicture &picture, bool isOpaque)
{
    const QImage bottomFirst(picture.rgba.data(), picture.width, picture.height, picture.width * 4,
                             QImage::Format_RGBA8888);
    QImage image = bottomFirst.mirrored();
    if (isOpaque)
        image = image.convertToFormat(QImage::Format_RGB888);
    image.setDotsPerMeterX(DotsPerMeter);
    image.setDotsPerMeterY(DotsPerMeter);
    return image;
}

QByteArray qxPicturePng::bytes(const qxPicture &picture, bool isOpaque)
{
    if (picture.isEmpty())
        return QByteArray();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image(picture, isOpaque).save(&buffer, "PNG");
    return buffer.data();
}
