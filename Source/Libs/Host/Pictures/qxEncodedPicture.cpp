#include "Pictures/qxEncodedPicture.h"

#include "Files/qxFileText.h"
#include "Pictures/OSGEncodedPicture.h"
#include "qxLog.h"
#include "qxText.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace {

/// Larger pictures are most likely made to exhaust the memory.
const int _maxSide = 16384;

void turnUpsideDown(QImage &image)
{
    for (int top = 0, bottom = image.height() - 1; top < bottom; ++top, --bottom)
        std::swap_ranges(image.scanLine(top), image.scanLine(top) + image.bytesPerLine(),
                         image.scanLine(bottom));
}

/// What the bytes begin with. Qt would have every plugin look whether they are for it.
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    return bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP" ? "webp" : QByteArray();
}

} // namespace

qxEncodedPicture::qxEncodedPicture(const QByteArray &bytes) : m_bytes(bytes)
{
    const QByteArray known = formatOf(bytes);
    if (known.isEmpty()) {
        m_flaw = qxFileText::tr("it is neither PNG, JPEG nor WebP");
        return;
    }
    QBuffer buffer(&m_bytes);
    QImageReader reader(&buffer, known);
    reader.setAutoDetectImageFormat(false);
    m_size = reader.size();
    if (m_size.isEmpty())
        m_flaw = reader.errorString();
    else if (m_size.width() > _maxSide || m_size.height() > _maxSide)
        m_flaw = qxFileText::tr("it is too large");
    const QImage::Format format = reader.imageFormat();
    m_isPlain =
        known == "png" && format != QImage::Format_RGBA64 && format != QImage::Format_RGBX64;
}

/// With all smaller sizes a third more. Sixteen bits per channel are there beside the eight that
/// are kept, and a JPEG may have to be collected as a whole before it can be decoded.
qint64 qxEncodedPicture::decodedSize() const
{
    const qint64 pixels = qint64(m_size.width()) * m_size.height();
    return m_isPlain ? pixels * 16 / 3 : pixels * 12;
}

osg::ImagePtr qxEncodedPicture::image(const QString &name) const
{
    const osg::EncodedPicturePtr attachment = osg::EncodedPicture::create();
    {
        const osg::CPEditor edit(attachment);
        attachment->getField().setValue(m_bytes.toStdString());
    }
    const osg::ImagePtr image = osg::Image::create();
    const osg::CPEditor edit(image);
    image->set(osg::Image::OSG_RGBA_PF, m_size.width(), m_size.height(), 1, 1, 1, 0.0, NULL,
               osg::Image::OSG_UINT8_IMAGEDATA, false);
    image->setName(qxText::toUtf8(name));
    image->addAttachment(attachment);
    return image;
}

QImage qxEncodedPicture::pixels(const osg::ImagePtr &image)
{
    const QByteArray encoded = bytes(image);
    if (encoded.isNull())
        return QImage();
    QString flaw;
    const QImage picture = decoded(encoded, flaw);
    if (picture.isNull())
        warn(image, flaw);
    return picture;
}

QByteArray qxEncodedPicture::bytes(const osg::ImagePtr &image)
{
    const auto attachment =
        osg::EncodedPicturePtr::dcast(image->findAttachment(osg::EncodedPicture::getClassType()));
    if (attachment == osg::NullFC)
        return QByteArray();
    const std::string &text = attachment->getField().getValue();
    return QByteArray::fromRawData(text.data(), int(text.size()));
}

QImage qxEncodedPicture::decoded(const QByteArray &bytes, QString &flaw)
{
    QByteArray encoded = bytes;
    QBuffer buffer(&encoded);
    QImageReader reader(&buffer, formatOf(bytes));
    reader.setAutoDetectImageFormat(false);
    QImage picture = reader.read().convertToFormat(QImage::Format_RGBA8888);
    if (picture.isNull())
        flaw = reader.errorString();
    else
        turnUpsideDown(picture);
    return picture;
}

void qxEncodedPicture::warn(const osg::ImagePtr &image, const QString &flaw)
{
    const QString said =
        qxFileText::tr("%1 is left out: %2").arg(qxText::fromUtf8(image->getName()), flaw);
    qxLog::warning("%s", qxText::toUtf8(said).c_str());
}
