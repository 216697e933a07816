#include "qxSetPictures.h"

#include "qxVariantSet.h"

#include "Report/qxContactSheet.h"

#include <QBuffer>
#include <QImage>

namespace {

/// On a card of the page; fine screens and phones show the pictures twice as large.
constexpr QSize cardSize(330, 220);
constexpr int JpegQuality = 85;

QImage rendered(const QSize &size)
{
    return QImage::fromData(qxSetPreviews::render(size.width(), size.height()));
}

} // namespace

QByteArray qxSetPictures::jpeg(const QImage &picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPG", JpegQuality);
    return buffer.data();
}

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
        pictures[name] = {jpeg(picture), jpeg(small)};
        return true;
    };
}
