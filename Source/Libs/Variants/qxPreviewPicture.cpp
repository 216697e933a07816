#include "qxPreviewPicture.h"

#include <QBuffer>
#include <QImageReader>

namespace {

/// Pixels of a side. Previews have 264 by 256; those of other programs may be larger.
constexpr int Largest = 1024;

} // namespace

bool qxPreviewPicture::isDecodable(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    const QSize size = QImageReader(&buffer).size();
    return size.isValid() && size.width() <= Largest && size.height() <= Largest;
}
