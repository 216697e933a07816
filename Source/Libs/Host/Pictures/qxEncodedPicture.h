#pragma once

#include <OpenSG/OSGImage.h>

#include <QImage>

/// A picture that is decoded when it is first drawn.
class qxEncodedPicture {
public:
    /// Reads only the header. The bytes must live as long as this object.
    explicit qxEncodedPicture(const QByteArray &bytes);

    /// Why it cannot be shown; empty if its header is valid.
    QString flaw() const { return m_flaw; }
    /// The bytes of memory that the picture needs, in all sizes that it is drawn in, or more if
    /// decoding temporarily needs more.
    qint64 decodedSize() const;
    /// An image without pixels that refers to the picture. `name` is for messages.
    osg::ImagePtr image(const QString &name) const;

    /// The pixels of such an image, red, green, blue and alpha, bottom row first. Null for other
    /// images, and when they cannot be decoded, which is a warning in the log.
    static QImage pixels(const osg::ImagePtr &image);
    ///@{
    /// The same in steps. Only the second may be taken in any thread: it gives a null picture and
    /// the reason when it fails. The bytes are null for other images and live as long as the image.
    static QByteArray bytes(const osg::ImagePtr &image);
    static QImage decoded(const QByteArray &bytes, QString &flaw);
    static void warn(const osg::ImagePtr &image, const QString &flaw);
    ///@}

private:
    QByteArray m_bytes;
    QString m_flaw;
    QSize m_size;
    bool m_isPlain = false; ///< decoding needs no more than the picture itself
};
