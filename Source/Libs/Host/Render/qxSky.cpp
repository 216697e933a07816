#include "Render/qxSky.h"

namespace {

const osg::Vec3f _lampDirection(0.35f, 0.82f, 0.45f);
const float _lampSharpness = 12.0f;

} // namespace

qxSky qxSky::room(float strength)
{
    qxSky sky(osg::Vec3f(0.32f, 0.31f, 0.3f) * strength, osg::Vec3f(1.15f, 1.17f, 1.2f) * strength);
    sky.m_lamp = osg::Vec3f(2.2f, 2.15f, 2.05f) * strength;
    return sky;
}

/// With `slope` below 1 the difference between below and above is smaller.
osg::Vec3f qxSky::light(float height, float slope) const
{
    return qxMixed(m_below, m_above, 0.5f + 0.5f * slope * height);
}

osg::Vec3f qxSky::mirrored(const osg::Vec3f &direction, float roughness) const
{
    const float blur = roughness * roughness;
    const float sharpness = qxMixed(_lampSharpness, 1.5f, blur);
    const float towards = std::max(0.0f, direction.dot(qxUnit(_lampDirection)));
    // A blurred lamp is larger and, with the same light in all, darker.
    const float lamp = std::pow(towards, sharpness) * (sharpness + 1.0f) / (_lampSharpness + 1.0f);
    return light(direction[1], qxMixed(1.0f, 2.0f / 3.0f, blur)) + m_lamp * lamp;
}

osg::Vec3f qxSky::scattered(const osg::Vec3f &normal) const
{
    const float towards = std::max(0.0f, normal.dot(qxUnit(_lampDirection)));
    const float lamp = towards * 2.0f / (_lampSharpness + 1.0f);
    return light(normal[1], 2.0f / 3.0f) + m_lamp * lamp;
}

qxSky::Sample qxSky::sample(const osg::Vec2f &place) const
{
    const float height = 2.0f * place[0] - 1.0f;
    const float radius = std::sqrt(std::max(0.0f, 1.0f - height * height));
    const float angle = 2.0f * qxPi * place[1];
    const osg::Vec3f direction(radius * std::cos(angle), height, radius * std::sin(angle));
    return {direction, light(direction), density(direction)};
}

float qxSky::density(const osg::Vec3f &) const
{
    return 0.25f / qxPi;
}
