#include "qxSetPictures.h"

#include "qxVariantSet.h"

#include "Report/qxContactSheet.h"

#include <QBuffer>
#include <QImage>

namespace {

/// On a card of the page; fine screens and phones show the pictures twice as large.
constexpr QSize cardSize(330, 220);
constexpr int JpegQuality = 85;

QByteArray jpegOf(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", JpegQuality);
    return buffer.data();
}

QImage rendered(const QSize &size)
{
    return QImage::fromData(qxSetPreviews::render(size.width(), size.height()));
}

} // namespace

qxSetPreviews::Work qxSetPictures::onSheet(qxContactSheet &sheet, const QSize &size,
                                           const std::function<void()> &look)
{
    return [&sheet, size, look](qxVariantSet &set) {
        if (look)
            look();
        const QString name = set.name; // Who is shown the progress may remove the set.
        const QImage picture = rendered(size);
        if (!picture.isNull())
            sheet.add(picture, name);
        return !picture.isNull();
    };
}

qxSetPreviews::Work qxSetPictures::onPage(qxCataloguePage::Pictures &pictures)
{
    return [&pictures](qxVariantSet &set) {
        const QString name = set.name;
        const QImage picture = rendered(cardSize * 2);
        if (picture.isNull())
            return false;
        const QImage small =
            picture.scaled(cardSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        pictures[name] = {jpegOf(picture), jpegOf(small)};
        return true;
    };
}
