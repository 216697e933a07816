#include "qxPreviewCache.h"

#include "qxPreviewPicture.h"

#include <QImage>

namespace {

const int room = 64 << 10; ///< kibibytes: what a large screen full of tiles needs, several times
const int turnTime = 25; ///< milliseconds, so that scrolling stays fluent

} // namespace

qxPreviewCache::qxPreviewCache() : m_pictures(room)
{
    m_turn.start();
}

void qxPreviewCache::beginTurn()
{
    m_turn.restart();
    m_isBehind = false;
}

QPixmap qxPreviewCache::picture(const QByteArray &bytes, const QSize &pixels)
{
    if (bytes.isEmpty() || pixels.isEmpty())
        return QPixmap();
    const Key key({qHash(bytes), bytes.size()}, {pixels.width(), pixels.height()});
    if (const QPixmap *const known = m_pictures.object(key))
        return *known;
    if (m_turn.elapsed() > turnTime) {
        m_isBehind = true;
        return QPixmap();
    }
    const QPixmap picture = scaled(bytes, pixels);
    const int size = picture.width() * picture.height() * 4 / 1024;
    m_pictures.insert(key, new QPixmap(picture), 1 + size);
    return picture;
}

QPixmap qxPreviewCache::scaled(const QByteArray &bytes, const QSize &pixels)
{
    const QImage whole = qxPreviewPicture::isDecodable(bytes) ? QImage::fromData(bytes) : QImage();
    if (whole.isNull())
        return QPixmap();
    // Pixels are whole: a picture that fits but for one of them fills its place.
    const QSize fitting = whole.size().scaled(pixels, Qt::KeepAspectRatio);
    const QSize left = pixels - fitting;
    const bool isFilling = left.width() + left.height() <= 2;
    return QPixmap::fromImage(whole.scaled(isFilling ? pixels : fitting, Qt::IgnoreAspectRatio,
                                           Qt::SmoothTransformation));
}
