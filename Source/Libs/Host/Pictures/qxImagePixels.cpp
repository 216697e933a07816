#include "Pictures/qxImagePixels.h"

#include "Render/qxPictureColour.h"

#include <array>
#include <cmath>
#include <cstring>

namespace {

template <class Number>
Number numberAt(const std::uint8_t *bytes)
{
    Number value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

/// A channel as a byte, whatever its format.
std::uint8_t channelAt(const std::uint8_t *bytes, osg::Int32 type)
{
    switch (type) {
    case osg::Image::OSG_UINT16_IMAGEDATA:
        return std::uint8_t(numberAt<std::uint16_t>(bytes) >> 8);
    case osg::Image::OSG_UINT32_IMAGEDATA:
        return std::uint8_t(numberAt<std::uint32_t>(bytes) >> 24);
    case osg::Image::OSG_FLOAT32_IMAGEDATA: {
        const float light = numberAt<float>(bytes);
        return std::uint8_t(std::lround(qxShownColour(osg::Vec3f(light, 0, 0))[0] * 255.0f));
    }
    default:
        return *bytes;
    }
}

/// Which channels of a pixel are its red, green, blue and alpha; -1 for full.
std::array<int, 4> channelOrder(osg::UInt32 format)
{
    switch (format) {
    case osg::Image::OSG_A_PF:
        return {-1, -1, -1, 0};
    case osg::Image::OSG_L_PF:
        return {0, 0, 0, -1};
    case osg::Image::OSG_LA_PF:
        return {0, 0, 0, 1};
    case osg::Image::OSG_RGB_PF:
        return {0, 1, 2, -1};
    case osg::Image::OSG_BGR_PF:
        return {2, 1, 0, -1};
    case osg::Image::OSG_BGRA_PF:
        return {2, 1, 0, 3};
    default:
        return {0, 1, 2, 3};
    }
}

} // namespace

QImage qxImagePixels(const osg::ImagePtr &image)
{
    const std::size_t pixels = std::size_t(image->getWidth()) * std::size_t(image->getHeight());
    const std::size_t step = std::size_t(image->getBpp());
    if (!image->isValid() || pixels == 0 || image->getSize() < pixels * step)
        return QImage();
    QImage result(image->getWidth(), image->getHeight(), QImage::Format_RGBA8888);
    if (result.isNull())
        return result;
    result.fill(Qt::white);
    const std::array<int, 4> order = channelOrder(image->getPixelFormat());
    const std::size_t channels = image->getComponents();
    const std::uint8_t *from = image->getData();
    std::uint8_t *const bytes = result.bits();
    for (std::size_t i = 0; i < pixels * 4; ++i) {
        const int channel = order[i % 4];
        if (channel >= 0)
            bytes[i] = channelAt(from + i / 4 * step + std::size_t(channel) * (step / channels),
                                 image->getDataType());
    }
    return result;
}
