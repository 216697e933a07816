#include "Light/qxLightFilter.h"

#include "Render/qxSampler.h"
#include "Render/qxTiles.h"

namespace {

const int _steps = 8; ///< of roughness
const int _mirrorTaps = 64;
const int _diffuseTaps = 256;

/// So high must a picture be that shows all of a lobe.
int heightOf(int step)
{
    return step == 1 ? 128 : step == 2 ? 64 : 32;
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

Direction diffuseDirection(const osg::Vec2f &random)
{
    const float radius = std::sqrt(random[0]);
    const float angle = 2.0f * qxPi * random[1];
    const float cosine = std::sqrt(1.0f - random[0]);
    return {osg::Vec3f(radius * std::cos(angle), radius * std::sin(angle), cosine), cosine / qxPi,
            1.0f};
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
        result.push_back(filtered(Mirrors, float(step) / float(_steps), heightOf(step)));
    return result;
}

qxLightPicture qxLightFilter::scattered() const
{
    return filtered(Diffuse, 1.0f, heightOf(_steps));
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
qxLightFilter::Taps qxLightFilter::tapsOf(Lobe lobe, float alpha, float down) const
{
    const int count = lobe == Mirrors ? _mirrorTaps : _diffuseTaps;
    const qxFrame frame(qxLightPicture::directionOf(osg::Vec2f(0.5f, down)));
    Taps taps;
    float sum = 0.0f;
    for (int i = 0; i < count; ++i) {
        const osg::Vec2f random = qxSampler(0, std::uint32_t(i)).nextPair();
        const Direction found =
            lobe == Mirrors ? mirrorDirection(random, alpha) : diffuseDirection(random);
        if (!(found.weight > 0.0f))
            continue;
        const osg::Vec2f place = qxLightPicture::placeOf(frame.toWorld(found.direction));
        const float solidAngle = 1.0f / (std::max(found.density, 1e-6f) * float(count));
        taps.push_back(
            {osg::Vec2f(place[0] - 0.5f, place[1]), &levelFor(solidAngle), found.weight});
        sum += found.weight;
    }
    for (Tap &tap : taps)
        tap.weight /= sum;
    return taps;
}

/// All pixels of a row see the same places, each turned by its own angle.
qxLightPicture qxLightFilter::filtered(Lobe lobe, float roughness, int height) const
{
    qxLightPicture result(height * 2, height);
    const auto fillRow = [&](int y) {
        const Taps taps = tapsOf(lobe, roughness * roughness, (float(y) + 0.5f) / float(height));
        for (int x = 0; x < result.width; ++x) {
            const osg::Vec2f turn((float(x) + 0.5f) / float(result.width), 0);
            for (const Tap &tap : taps)
                result.at(x, y) += tap.picture->at(tap.place + turn) * tap.weight;
        }
    };
    qxForAllTiles(height, 0, fillRow, [](int) { return true; });
    return result;
}
