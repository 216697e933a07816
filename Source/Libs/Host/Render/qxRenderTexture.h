#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGVector.h>

#include <cstdint>
#include <memory>
#include <vector>

/// A copy of an image, for looking up light in it.
class qxRenderTexture {
public:
    /// Null when the image is null or holds nothing that can be shown.
    static std::shared_ptr<const qxRenderTexture> make(const osg::ImagePtr &image);

    /// Beyond the edges, to the right and upwards: GL_REPEAT, GL_MIRRORED_REPEAT or
    /// GL_CLAMP_TO_EDGE; any other counts as the latter.
    struct Wrap {
        osg::UInt32 s;
        osg::UInt32 t;
    };
    /// Light and alpha at a place (0, 0 is the lower left corner of the image, 1, 1 the upper right
    /// one), smooth between the pixels.
    osg::Vec4f at(const osg::Vec2f &place, const Wrap &wrap) const;

private:
    osg::Vec4f pixel(int x, int y) const;

    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint8_t> m_rgba; ///< sRGB, bottom row first
};
