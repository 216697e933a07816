#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGVector.h>

#include <QImage>

#include <cstdint>
#include <memory>
#include <vector>

/// A copy of an image for texture look-ups. An encoded image is decoded here.
class qxRenderTexture {
public:
    /// Null if the image is null or cannot be shown.
    static std::shared_ptr<const qxRenderTexture> make(const osg::ImagePtr &image);

    /// Horizontal and vertical wrap mode: GL_REPEAT, GL_MIRRORED_REPEAT or GL_CLAMP_TO_EDGE; any
    /// other counts as the latter.
    struct Wrap {
        osg::UInt32 s;
        osg::UInt32 t;
    };
    /// Light and alpha at a place (0, 0 is the lower left corner of the image, 1, 1 the upper right
    /// one), interpolated between pixels. With a width, in units of the image, averaged over about
    /// that width.
    osg::Vec4f at(const osg::Vec2f &place, const Wrap &wrap, float width = 0) const;

private:
    /// The image in full size or smaller.
    struct Level {
        /// Of bytes: red, green, blue and alpha, bottom row first.
        explicit Level(const QImage &image);
        osg::Vec4f pixel(int x, int y) const;
        osg::Vec4f at(const osg::Vec2f &place, const Wrap &wrap) const;
        Level half() const;

        QImage pixels; ///< sRGB
        int width;
        int height;
        const std::uint8_t *rgba; ///< of the pixels
    };

    std::vector<Level> m_levels; ///< each half as wide and high as the one before
};
