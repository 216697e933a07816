#include "qxPreviewStamp.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

namespace {

const char *const key = "Fingerprint";

} // namespace

QByteArray qxPreviewStamp::stamped(const QByteArray &png, const QByteArray &fingerprint)
{
    QImage picture = QImage::fromData(png, "PNG");
    if (picture.isNull())
        return QByteArray();
    picture.setText(QLatin1String(key), QString::fromLatin1(fingerprint));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray qxPreviewStamp::of(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "PNG");
    reader.setAutoDetectImageFormat(false);
    // Without a PNG, as of a set that has no preview, libpng would complain on standard error.
    return reader.canRead() ? reader.text(QLatin1String(key)).toLatin1() : QByteArray();
}
