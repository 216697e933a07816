#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGVector.h>

#include <QByteArray>
#include <QImage>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

/// A copy of an image for texture look-ups. An encoded image is decoded here.
class qxRenderTexture {
public:
    /// What the bytes of an image stand for.
    enum Content {
        Numbers, ///< from 0 to 1
        Colours ///< sRGB, with a number as alpha; looked up as light
    };
    /// Null if the image is null or cannot be shown.
    static std::shared_ptr<const qxRenderTexture> make(const osg::ImagePtr &image, Content content);
    /// Of red, green, blue and alpha, bottom row first; null for a null image. In any thread.
    static std::shared_ptr<const qxRenderTexture> make(const QImage &pixels, Content content);

    /// Horizontal and vertical wrap mode: GL_REPEAT, GL_MIRRORED_REPEAT or GL_CLAMP_TO_EDGE; any
    /// other counts as the latter.
    struct Wrap {
        osg::UInt32 s;
        osg::UInt32 t;
    };
    /// A parallelogram around a place: the way along its sides, in units of the image.
    typedef std::array<osg::Vec2f, 2> Footprint;
    /// The value at a place (0, 0 is the lower left corner of the image, 1, 1 the upper right one),
    /// interpolated between pixels, averaged over the footprint when that is larger than a pixel.
    osg::Vec4f at(const osg::Vec2f &place, const Wrap &wrap, const Footprint &footprint) const;

    /// Tells the image and what it stands for from others; computed at the first call.
    const QByteArray &digest() const;

private:
    /// The image in full size or smaller.
    struct Level {
        /// Of bytes: red, green, blue and alpha, bottom row first.
        Level(const QImage &image, Content content);
        osg::Vec4f pixel(int x, int y) const;
        osg::Vec4f at(const osg::Vec2f &place, const Wrap &wrap) const;
        Level half() const;

        QImage pixels;
        Content content;
        const float *values; ///< of the bytes of red, green and blue
        int width;
        int height;
        const std::uint8_t *rgba; ///< of the pixels
    };

    osg::Vec4f at(const osg::Vec2f &place, const Wrap &wrap, float level) const;

    std::vector<Level> m_levels; ///< each half as wide and high as the one before
    mutable QByteArray m_digest; ///< empty until asked for
};
