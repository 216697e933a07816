#pragma once

#include <OpenSG/OSGImage.h>

#include <QImage>

/// A picture that waits to be decoded until it is drawn.
class qxEncodedPicture {
public:
    /// Looks at the header alone. The bytes need live no longer than this.
    explicit qxEncodedPicture(const QByteArray &bytes);

    /// Why it cannot be shown; empty when nothing in the header speaks against it.
    QString flaw() const { return m_flaw; }
    /// The bytes of memory that decoding needs: for the picture in all sizes that it is drawn in,
    /// or for a while more than that.
    qint64 decodedSize() const;
    /// An image without pixels that stands for the picture. Messages call it `name`.
    osg::ImagePtr image(const QString &name) const;

    /// The pixels of such an image, red, green, blue and alpha, bottom row first. Null for other
    /// images, and when they cannot be decoded, which is a warning in the log.
    static QImage pixels(const osg::ImagePtr &image);

private:
    QByteArray m_bytes;
    QString m_flaw;
    QSize m_size;
    bool m_isPlain = false; ///< decoding needs no more than the picture itself
};
