#include "Render/qxShading.h"

#include "Light/qxEnvironmentLight.h"

namespace {

const osg::Vec3f _white(1, 1, 1);

/// Smoother surfaces would show punctual lights as highlights smaller than any pixel.
const float _smoothest = 0.04f;

/// Distribution of the microscopic mirrors over the directions.
float distribution(float cosine, float alpha)
{
    const float square = alpha * alpha;
    const float root = cosine * cosine * (square - 1.0f) + 1.0f;
    return square / (qxPi * root * root);
}

/// How much of the mirrors is seen by eye and light, divided by four times both cosines.
float visibility(float light, float eye, float alpha)
{
    const float square = alpha * alpha;
    const float a = light * std::sqrt(eye * eye * (1.0f - square) + square);
    const float b = eye * std::sqrt(light * light * (1.0f - square) + square);
    return 0.5f / std::max(a + b, 1e-7f);
}

/// The share of the mirrors that are not in the shadow of others in one direction.
float unshadowed(float cosine, float alpha)
{
    const float square = alpha * alpha;
    return 2.0f * cosine / (cosine + std::sqrt(square + (1.0f - square) * cosine * cosine));
}

/// A mirror normal as seen from direction `eye`, both relative to the surface: a point of a disc,
/// lifted to the hemisphere that the eye sees.
osg::Vec3f visibleMirror(const osg::Vec3f &eye, float alpha, const osg::Vec2f &place)
{
    const osg::Vec3f stretched = qxUnit(osg::Vec3f(eye[0] * alpha, eye[1] * alpha, eye[2]));
    const qxFrame frame(stretched);
    const float radius = std::sqrt(place[0]);
    const float angle = 2.0f * qxPi * place[1];
    const float x = radius * std::cos(angle);
    const float half = 0.5f * (1.0f + stretched[2]);
    // The frame's y axis is the one to be squeezed; turn it upwards first.
    const osg::Vec3f up = qxUnit(osg::Vec3f(0, 0, 1) - stretched * stretched[2]);
    const osg::Vec3f second = up.squareLength() > 0.0f ? up : frame.y;
    const osg::Vec3f first = second.cross(stretched);
    const float y =
        qxMixed(std::sqrt(std::max(0.0f, 1.0f - x * x)), radius * std::sin(angle), half);
    const float z = std::sqrt(std::max(0.0f, 1.0f - x * x - y * y));
    const osg::Vec3f normal = first * x + second * y + stretched * z;
    return qxUnit(osg::Vec3f(normal[0] * alpha, normal[1] * alpha, std::max(0.0f, normal[2])));
}

} // namespace

qxShading::qxShading(const Surface &surface, const osg::Vec3f &normal, const osg::Vec3f &toEye)
    : m_frame(normal), m_toEye(toEye), m_eyeCosine(std::max(normal.dot(toEye), 1e-4f)),
      m_roughness(std::max(surface.roughness, _smoothest)), m_alpha(m_roughness * m_roughness),
      m_matt(surface.base * (1.0f - surface.metallic)),
      m_mirror(qxMixed(_white * 0.04f, surface.base, surface.metallic))
{
    const float mirrors = qxPeak(fresnel(m_eyeCosine));
    const float matt = qxPeak(m_matt) * (1.0f - mirrors);
    m_mirrorChance = matt > 0.0f ? std::clamp(mirrors / (mirrors + matt), 0.1f, 0.9f) : 1.0f;
}

osg::Vec3f qxShading::fresnel(float cosine) const
{
    const float rest = 1.0f - std::clamp(cosine, 0.0f, 1.0f);
    return m_mirror + (_white - m_mirror) * (rest * rest * rest * rest * rest);
}

osg::Vec3f qxShading::reflected(const osg::Vec3f &toLight) const
{
    const float cosine = m_frame.z.dot(toLight);
    if (cosine <= 0.0f)
        return osg::Vec3f();
    const osg::Vec3f half = qxUnit(toLight + m_toEye);
    const osg::Vec3f mirrors = fresnel(half.dot(m_toEye));
    const float shine = distribution(std::max(m_frame.z.dot(half), 0.0f), m_alpha)
        * visibility(cosine, m_eyeCosine, m_alpha);
    const osg::Vec3f matt = qxProduct(_white - mirrors, m_matt) * (1.0f / qxPi);
    return (matt + mirrors * shine) * cosine;
}

osg::Vec3f qxShading::reflectedSky(const qxEnvironmentLight &sky, const osg::Vec3f &hidden) const
{
    const osg::Vec3f scattered = qxNotNegative(sky.scattered(m_frame.z) - hidden);
    // A fit of the reflection integral over roughness and angle.
    const float r[4] = {1.0f - m_roughness, 0.0425f - 0.0275f * m_roughness,
                        1.04f - 0.572f * m_roughness, 0.022f * m_roughness - 0.04f};
    const float edge = std::min(r[0] * r[0], std::pow(2.0f, -9.28f * m_eyeCosine)) * r[0] + r[1];
    const osg::Vec3f mirrors = m_mirror * (-1.04f * edge + r[2]) + _white * (1.04f * edge + r[3]);
    const osg::Vec3f direction = qxMirrored(-m_toEye, m_frame.z);
    return qxProduct(mirrors, sky.mirrored(direction, m_roughness))
        + qxProduct(qxProduct(_white - mirrors, m_matt), scattered);
}

qxShading::Bounce qxShading::bounce(float choice, const osg::Vec2f &place) const
{
    const osg::Vec3f direction =
        choice < m_mirrorChance ? mirrorDirection(place) : mattDirection(place);
    const float chance = density(direction);
    const osg::Vec3f share = chance > 0.0f ? reflected(direction) * (1.0f / chance) : osg::Vec3f();
    return {direction, share, chance};
}

float qxShading::density(const osg::Vec3f &toLight) const
{
    const float cosine = m_frame.z.dot(toLight);
    if (cosine <= 0.0f)
        return 0.0f;
    const osg::Vec3f half = qxUnit(toLight + m_toEye);
    const float mirrors = distribution(std::max(m_frame.z.dot(half), 0.0f), m_alpha)
        * unshadowed(m_eyeCosine, m_alpha) / (4.0f * m_eyeCosine);
    return qxMixed(cosine / qxPi, mirrors, m_mirrorChance);
}

osg::Vec3f qxShading::mattDirection(const osg::Vec2f &place) const
{
    const float radius = std::sqrt(place[0]);
    const float angle = 2.0f * qxPi * place[1];
    return m_frame.toWorld(osg::Vec3f(radius * std::cos(angle), radius * std::sin(angle),
                                      std::sqrt(std::max(0.0f, 1.0f - place[0]))));
}

osg::Vec3f qxShading::mirrorDirection(const osg::Vec2f &place) const
{
    const osg::Vec3f eye = m_frame.toLocal(m_toEye);
    return m_frame.toWorld(qxMirrored(-eye, visibleMirror(eye, m_alpha, place)));
}
