#include "Light/qxLightFilter.h"

#include "Render/qxSampler.h"
#include "Render/qxTiles.h"

namespace {

const int _steps = 8; ///< of roughness
const int _taps = 48; ///< places of the picture that a lobe looks at

/// So high must a picture be that shows all of a lobe.
int heightOf(int step)
{
    return step <= 2 ? 64 : 32;
}

/// A direction towards which light is looked for, around the z axis.
struct Direction {
    osg::Vec3f direction;
    float density; ///< probability per solid angle
    float weight;
};

Direction mirrorDirection(const osg::Vec2f &random, float alpha)
{
    const float square = alpha * alpha;
    const float cosine = std::sqrt((1.0f - random[0]) / (1.0f + (square - 1.0f) * random[0]));
    const float sine = std::sqrt(std::max(0.0f, 1.0f - cosine * cosine));
    const float angle = 2.0f * qxPi * random[1];
    const osg::Vec3f mirror(sine * std::cos(angle), sine * std::sin(angle), cosine);
    const osg::Vec3f direction = mirror * (2.0f * cosine) - osg::Vec3f(0, 0, 1);
    const float root = cosine * cosine * (square - 1.0f) + 1.0f;
    return {direction, square / (4.0f * qxPi * root * root), std::max(direction[2], 0.0f)};
}

/// For each pixel of the picture the share that it has in a surface that faces a direction, so far
/// down from straight above, in the column behind the middle of the picture.
std::vector<float> cosinesOf(float down, const qxLightPicture &picture)
{
    const osg::Vec3f normal = qxLightPicture::directionOf(
        osg::Vec2f((float(picture.width / 2) + 0.5f) / float(picture.width), down));
    std::vector<float> result;
    result.reserve(picture.light.size());
    float sum = 0.0f;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const osg::Vec2f place((float(x) + 0.5f) / float(picture.width),
                                   (float(y) + 0.5f) / float(picture.height));
            const float cosine = normal.dot(qxLightPicture::directionOf(place));
            result.push_back(std::max(cosine, 0.0f) * picture.solidAngle(y));
            sum += result.back();
        }
    }
    for (float &weight : result)
        weight /= sum;
    return result;
}

/// The weighted sum of the pixels, with the weights so many columns to the right.
osg::Vec3f turnedSum(const qxLightPicture &picture, const std::vector<float> &weights, int columns)
{
    const int width = picture.width;
    const int shift = (columns + width) % width;
    osg::Vec3f sum;
    for (int y = 0; y < picture.height; ++y) {
        const float *const row = &weights[std::size_t(y) * std::size_t(width)];
        const osg::Vec3f *const light = &picture.light[std::size_t(y) * std::size_t(width)];
        for (int x = 0; x < width; ++x) {
            const int from = x >= shift ? x - shift : x - shift + width;
            sum += light[x] * row[from];
        }
    }
    return sum;
}

} // namespace

qxLightFilter::qxLightFilter(const qxLightPicture &picture,
                             const std::vector<qxLightPicture> &smaller)
    : m_picture(picture), m_smaller(smaller)
{
}

std::vector<qxLightPicture> qxLightFilter::mirrored() const
{
    std::vector<qxLightPicture> result;
    for (int step = 1; step <= _steps; ++step)
        result.push_back(filtered(float(step) / float(_steps), heightOf(step)));
    return result;
}

/// Exactly: the lobe is so broad that a small picture shows all of it.
qxLightPicture qxLightFilter::scattered() const
{
    const qxLightPicture *source = &m_picture;
    for (const qxLightPicture &level : m_smaller)
        source = source->height > heightOf(_steps) ? &level : source;
    qxLightPicture result(source->width, source->height);
    const auto fillRow = [&](int y) {
        const std::vector<float> weights =
            cosinesOf((float(y) + 0.5f) / float(result.height), *source);
        for (int x = 0; x < result.width; ++x)
            result.at(x, y) = turnedSum(*source, weights, x - source->width / 2);
    };
    qxForAllTiles(result.height, 0, fillRow, [](int) { return true; });
    return result;
}

/// The level with pixels of about that size, rather coarser than finer.
const qxLightPicture &qxLightFilter::levelFor(float solidAngle) const
{
    for (const qxLightPicture &level : m_smaller) {
        if (level.solidAngle(level.height / 2) > solidAngle)
            return level;
    }
    return m_smaller.empty() ? m_picture : m_smaller.back();
}

/// What a lobe around a direction, so far down from straight above, collects.
qxLightFilter::Taps qxLightFilter::tapsOf(float alpha, float down) const
{
    const qxFrame frame(qxLightPicture::directionOf(osg::Vec2f(0.5f, down)));
    Taps taps;
    float sum = 0.0f;
    for (int i = 0; i < _taps; ++i) {
        const osg::Vec2f random = qxSampler(0, std::uint32_t(i)).nextPair();
        const Direction found = mirrorDirection(random, alpha);
        if (!(found.weight > 0.0f))
            continue;
        const osg::Vec2f place = qxLightPicture::placeOf(frame.toWorld(found.direction));
        const float solidAngle = 1.0f / (std::max(found.density, 1e-6f) * float(_taps));
        taps.push_back(
            {osg::Vec2f(place[0] - 0.5f, place[1]), &levelFor(solidAngle), found.weight});
        sum += found.weight;
    }
    for (Tap &tap : taps)
        tap.weight /= sum;
    return taps;
}

/// All pixels of a row see the same places, each turned by its own angle.
qxLightPicture qxLightFilter::filtered(float roughness, int height) const
{
    qxLightPicture result(height * 2, height);
    const auto fillRow = [&](int y) {
        const Taps taps = tapsOf(roughness * roughness, (float(y) + 0.5f) / float(height));
        for (int x = 0; x < result.width; ++x) {
            const osg::Vec2f turn((float(x) + 0.5f) / float(result.width), 0);
            for (const Tap &tap : taps)
                result.at(x, y) += tap.picture->at(tap.place + turn) * tap.weight;
        }
    };
    qxForAllTiles(height, 0, fillRow, [](int) { return true; });
    return result;
}
