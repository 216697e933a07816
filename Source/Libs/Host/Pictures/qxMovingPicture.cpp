#include "Pictures/qxMovingPicture.h"

#include "Render/qxReprojection.h"

#include <algorithm>
#include <thread>

namespace {

/// Seconds for a picture: with what a window does with it, twenty are seen in a second.
const float _pictureTime = 0.038f;
/// Seconds of one processor for a pixel, until they are measured.
const float _firstDrawTime = 1e-6f;
const float _firstOtherTime = 80e-9f;
const float _newness = 0.2f; ///< what the last measurement counts beside those before
const float _scales[] = {1.0f, 0.75f, 0.5f};
/// The share of the pixels that is drawn at least: with less, surfaces would come too late.
const float _leastDrawn = 0.07f;
const float _steadiness =
    0.8f; ///< the time a larger picture may take, so that sizes do not alternate

int scaled(int size, float scale)
{
    return std::max(1, int(float(size) * scale + 0.5f));
}

} // namespace

qxMovingPicture::qxMovingPicture() : m_memory(std::make_unique<qxReprojection>())
{
    const float processors = float(std::max(1u, std::thread::hardware_concurrency()));
    m_drawTime = _firstDrawTime / processors;
    m_otherTime = _firstOtherTime / processors;
}

qxMovingPicture::~qxMovingPicture() = default;

void qxMovingPicture::forget()
{
    m_memory->forget();
}

float qxMovingPicture::fittingScale(float pixels) const
{
    for (const float scale : _scales) {
        const float time = pixels * scale * scale * (m_otherTime + m_drawTime * _leastDrawn);
        const float limit = m_scale > 0.0f && scale > m_scale ? _steadiness : 1.0f;
        if (time < _pictureTime * limit)
            return scale;
    }
    return *std::prev(std::end(_scales));
}

qxPicture qxMovingPicture::next(qxRenderer &renderer, const qxPictureSettings &settings)
{
    const float whole = float(settings.width) * float(settings.height);
    m_scale = fittingScale(whole);
    qxPictureSettings fitting = settings;
    fitting.width = scaled(settings.width, m_scale);
    fitting.height = scaled(settings.height, m_scale);
    const int pixels = fitting.width * fitting.height;
    const float left = std::max(0.0f, _pictureTime - m_otherTime * float(pixels));
    const float drawn = std::clamp(left / m_drawTime, _leastDrawn * float(pixels), float(pixels));
    qxPicture picture = renderer.renderMoving(fitting, *m_memory, int(drawn));
    if (picture.isEmpty())
        return picture;
    measure(pixels);
    m_share = float(m_memory->drawn()) / whole;
    return picture;
}

void qxMovingPicture::measure(int pixels)
{
    const auto smooth = [](float &value, double measured) {
        value += (float(measured) - value) * _newness;
    };
    smooth(m_drawTime, m_memory->drawTime() / std::max(1, m_memory->drawn()));
    smooth(m_otherTime, m_memory->otherTime() / pixels);
}

qxRenderer::Drawing qxMovingPicture::whole(qxRenderer &renderer, const qxPictureSettings &settings)
{
    return renderer.preparedMoving(settings, *m_memory, settings.width * settings.height);
}
