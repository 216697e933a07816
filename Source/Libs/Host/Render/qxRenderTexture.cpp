#include "Render/qxRenderTexture.h"

#include "Pictures/qxEncodedPicture.h"
#include "Pictures/qxImagePixels.h"
#include "Render/qxDigest.h"
#include "Render/qxPictureColour.h"
#include "Render/qxRenderMath.h"

#include <OpenSG/OSGGL.h>

#include <array>

namespace {

/// In a footprint that is longer than wide; beyond that it is averaged over more than its width.
const int _mostPlaces = 8;

/// Light of each value of a byte.
const std::array<float, 256> &lightOfBytes()
{
    static const std::array<float, 256> table = [] {
        std::array<float, 256> values;
        for (int i = 0; i < 256; ++i)
            values[std::size_t(i)] = qxLightOf(osg::Color3f(float(i) / 255.0f, 0, 0))[0];
        return values;
    }();
    return table;
}

const std::array<float, 256> &numbersOfBytes()
{
    static const std::array<float, 256> table = [] {
        std::array<float, 256> values;
        for (int i = 0; i < 256; ++i)
            values[std::size_t(i)] = float(i) / 255.0f;
        return values;
    }();
    return table;
}

/// The byte of an amount of light from 0 to 1.
std::uint8_t byteOfLight(float light)
{
    static const std::array<std::uint8_t, 4097> table = [] {
        std::array<std::uint8_t, 4097> values;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const float shown = qxShownColour(osg::Vec3f(float(i) / 4096.0f, 0, 0))[0];
            values[i] = std::uint8_t(std::lround(shown * 255.0f));
        }
        return values;
    }();
    return table[std::size_t(std::lround(light * 4096.0f))];
}

/// The place of a pixel inside of the picture that the wrap mode shows there.
int wrapped(int pixel, int size, osg::UInt32 mode)
{
    if (pixel >= 0 && pixel < size)
        return pixel;
    if (mode != GL_REPEAT && mode != GL_MIRRORED_REPEAT)
        return std::clamp(pixel, 0, size - 1);
    const int period = mode == GL_REPEAT ? size : 2 * size;
    const int rest = (pixel % period + period) % period;
    return rest < size ? rest : period - 1 - rest;
}

/// As std::floor, which is a call for many processors.
int floored(float number)
{
    const int whole = int(number);
    return whole - (float(whole) > number ? 1 : 0);
}

/// Takes a coordinate near to the picture, where pixels can be counted in integers.
float nearby(float coordinate, osg::UInt32 mode)
{
    if (!std::isfinite(coordinate))
        return 0.0f;
    if (mode == GL_MIRRORED_REPEAT)
        return coordinate - 2.0f * std::floor(coordinate * 0.5f);
    return mode == GL_REPEAT ? coordinate - std::floor(coordinate)
                             : std::clamp(coordinate, -1.0f, 2.0f);
}

} // namespace

std::shared_ptr<const qxRenderTexture> qxRenderTexture::make(const osg::ImagePtr &image,
                                                             Content content)
{
    if (image == osg::NullFC || image->getComponents() == 0)
        return nullptr;
    return make(image->isValid() ? qxImagePixels(image) : qxEncodedPicture::pixels(image), content);
}

std::shared_ptr<const qxRenderTexture> qxRenderTexture::make(const QImage &pixels, Content content)
{
    if (pixels.isNull())
        return nullptr;
    const auto texture = std::make_shared<qxRenderTexture>();
    texture->m_levels.emplace_back(pixels, content);
    while (texture->m_levels.back().width > 1 || texture->m_levels.back().height > 1)
        texture->m_levels.push_back(texture->m_levels.back().half());
    return texture;
}

const QByteArray &qxRenderTexture::digest() const
{
    if (!m_digest.isEmpty())
        return m_digest;
    const Level &full = m_levels.front();
    qxDigest digest;
    digest.add(full.content, full.width, full.height);
    digest.addBytes(full.rgba, std::size_t(full.width) * std::size_t(full.height) * 4);
    m_digest = digest.result();
    return m_digest;
}

qxRenderTexture::Level::Level(const QImage &image, Content contained)
    : pixels(image), content(contained),
      values((contained == Colours ? lightOfBytes() : numbersOfBytes()).data()),
      width(image.width()), height(image.height()), rgba(pixels.constBits())
{
}

osg::Vec4f qxRenderTexture::Level::pixel(int x, int y) const
{
    const std::uint8_t *at = &rgba[(std::size_t(y) * std::size_t(width) + std::size_t(x)) * 4];
    return osg::Vec4f(values[at[0]], values[at[1]], values[at[2]], float(at[3]) / 255.0f);
}

osg::Vec4f qxRenderTexture::Level::at(const osg::Vec2f &place, const Wrap &wrap) const
{
    const float x = nearby(place[0], wrap.s) * float(width) - 0.5f;
    const float y = nearby(place[1], wrap.t) * float(height) - 0.5f;
    const int left = floored(x);
    const int low = floored(y);
    const int x0 = wrapped(left, width, wrap.s);
    const int x1 = wrapped(left + 1, width, wrap.s);
    const int y0 = wrapped(low, height, wrap.t);
    const int y1 = wrapped(low + 1, height, wrap.t);
    const osg::Vec4f lower = qxMixed(pixel(x0, y0), pixel(x1, y0), x - float(left));
    const osg::Vec4f upper = qxMixed(pixel(x0, y1), pixel(x1, y1), x - float(left));
    return qxMixed(lower, upper, y - float(low));
}

qxRenderTexture::Level qxRenderTexture::Level::half() const
{
    QImage result(std::max(width / 2, 1), std::max(height / 2, 1), QImage::Format_RGBA8888);
    std::uint8_t *to = result.bits();
    const int right = width > 1 ? 1 : 0;
    const int up = height > 1 ? 1 : 0;
    for (int y = 0; y < result.height() * 2; y += 2) {
        for (int x = 0; x < result.width() * 2; x += 2) {
            const osg::Vec4f sum =
                pixel(x, y) + pixel(x + right, y) + pixel(x, y + up) + pixel(x + right, y + up);
            for (osg::UInt32 i = 0; i < 4; ++i) {
                const float mean = sum[i] * 0.25f;
                const bool isLight = content == Colours && i < 3;
                *to++ = isLight ? byteOfLight(mean) : std::uint8_t(std::lround(mean * 255.0f));
            }
        }
    }
    return Level(result, content);
}

osg::Vec4f qxRenderTexture::at(const osg::Vec2f &place, const Wrap &wrap, float wanted) const
{
    if (!(wanted > 0.0f))
        return m_levels.front().at(place, wrap);
    const std::size_t level = std::min(std::size_t(wanted), m_levels.size() - 1);
    const osg::Vec4f fine = m_levels[level].at(place, wrap);
    if (level + 1 == m_levels.size())
        return fine;
    return qxMixed(fine, m_levels[level + 1].at(place, wrap), wanted - float(level));
}

/// Several places along the longer side, each averaged over the shorter one (Heckbert 1989,
/// "Fundamentals of Texture Mapping and Image Warping", as graphics hardware simplifies it).
osg::Vec4f qxRenderTexture::at(const osg::Vec2f &place, const Wrap &wrap,
                               const Footprint &footprint) const
{
    const osg::Vec2f size(float(m_levels.front().width), float(m_levels.front().height));
    float lengths[2];
    for (std::size_t i = 0; i < 2; ++i)
        lengths[i] = osg::Vec2f(footprint[i][0] * size[0], footprint[i][1] * size[1]).length();
    const std::size_t longer = lengths[1] > lengths[0] ? 1 : 0;
    if (!(lengths[longer] > 1.0f) || !std::isfinite(lengths[longer]))
        return at(place, wrap, 0.0f);
    const float narrow = std::max(lengths[1 - longer], 1.0f);
    const int places = std::clamp(int(std::ceil(lengths[longer] / narrow)), 1, _mostPlaces);
    const float level = std::log2(std::max(lengths[longer] / float(places), narrow));
    osg::Vec4f sum;
    for (int i = 0; i < places; ++i) {
        const float along = (float(i) + 0.5f) / float(places) - 0.5f;
        sum += at(place + footprint[longer] * along, wrap, level);
    }
    return sum * (1.0f / float(places));
}
