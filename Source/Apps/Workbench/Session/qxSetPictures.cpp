#include "qxSetPictures.h"

#include "Report/qxContactSheet.h"

#include <QBuffer>
#include <QImage>

namespace {

constexpr int JpegQuality = 85;

} // namespace

QByteArray qxSetPictures::jpeg(const QImage &picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPG", JpegQuality);
    return buffer.data();
}

qxSetPreviews::Make qxSetPictures::ofSize(const QSize &size)
{
    return [size] { return qxSetPreviews::render(size); };
}

qxSetPreviews::Take qxSetPictures::onSheet(qxContactSheet &sheet)
{
    return [&sheet](const QString &name, const QByteArray &png) {
        const QImage picture = QImage::fromData(png);
        if (!picture.isNull())
            sheet.add(picture, name);
        return !picture.isNull();
    };
}

qxCataloguePage::Picture qxSetPictures::onPage(const QByteArray &png)
{
    const QImage picture = QImage::fromData(png);
    if (picture.isNull())
        return {};
    const QImage small = picture.scaled(cardSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return {jpeg(picture), jpeg(small)};
}

qxSetPreviews::Take qxSetPictures::onPage(qxCataloguePage::Pictures &pictures)
{
    return [&pictures](const QString &name, const QByteArray &png) {
        const qxCataloguePage::Picture picture = onPage(png);
        if (!picture.large.isEmpty())
            pictures[name] = picture;
        return !picture.large.isEmpty();
    };
}
