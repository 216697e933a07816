#include "Pictures/qxMovingPicture.h"

#include "Render/qxReprojection.h"

#include <algorithm>

namespace {

/// Seconds for a picture: with what a window does with it, twenty are seen in a second.
const double _pictureTime = 0.040;
/// The least share of a second for drawing, whatever the rest takes.
const double _leastTime = 0.015;
const double _firstPixelTime = 0.5e-6; ///< until it was measured
const double _newness = 0.3; ///< what the last measurement counts beside those before
const int _fewest = 64; ///< a picture of one pixel in so many would show nothing

} // namespace

qxMovingPicture::qxMovingPicture() : m_memory(std::make_unique<qxReprojection>()) {}

qxMovingPicture::~qxMovingPicture() = default;

int qxMovingPicture::affordable(int pixels) const
{
    const double time = std::max(_leastTime, _pictureTime - m_otherTime);
    const double count = time / (m_pixelTime > 0 ? m_pixelTime : _firstPixelTime);
    return int(std::clamp(count, double(pixels) / _fewest, double(pixels)));
}

qxPicture qxMovingPicture::next(qxRenderer &renderer, const qxPictureSettings &settings)
{
    const int pixels = settings.width * settings.height;
    const qxPicture picture = renderer.renderMoving(settings, *m_memory, affordable(pixels));
    if (picture.isEmpty())
        return picture;
    m_share = float(m_memory->drawn()) / float(pixels);
    const auto smooth = [](double &value, double measured) {
        value = value > 0 ? value + (measured - value) * _newness : measured;
    };
    smooth(m_pixelTime, m_memory->drawTime() / std::max(1, m_memory->drawn()));
    smooth(m_otherTime, m_memory->otherTime());
    return picture;
}

qxRenderer::Drawing qxMovingPicture::whole(qxRenderer &renderer, const qxPictureSettings &settings)
{
    return renderer.preparedMoving(settings, *m_memory, settings.width * settings.height);
}
