#include "Render/qxMicrofacets.h"

float qxMicrofacets::distribution(const osg::Vec3f &mirror) const
{
    const float x = mirror[0] / m_x;
    const float y = mirror[1] / m_y;
    const float root = x * x + y * y + mirror[2] * mirror[2];
    return 1.0f / (qxPi * m_x * m_y * root * root);
}

/// The length of a direction on the surface as it would be with the roughness 1.
float qxMicrofacets::stretched(const osg::Vec3f &direction) const
{
    const float x = direction[0] * m_x;
    const float y = direction[1] * m_y;
    return std::sqrt(x * x + y * y + direction[2] * direction[2]);
}

float qxMicrofacets::visibility(const osg::Vec3f &light, const osg::Vec3f &eye) const
{
    const float sum = light[2] * stretched(eye) + eye[2] * stretched(light);
    return 0.5f / std::max(sum, 1e-7f);
}

float qxMicrofacets::unmasked(const osg::Vec3f &direction) const
{
    return 2.0f * direction[2] / (direction[2] + stretched(direction));
}

/// A point of a disc, lifted to the hemisphere that the eye sees (Heitz 2018, "Sampling the GGX
/// Distribution of Visible Normals").
osg::Vec3f qxMicrofacets::seenMirror(const osg::Vec3f &eye, const osg::Vec2f &place) const
{
    const osg::Vec3f towards = qxUnit(osg::Vec3f(eye[0] * m_x, eye[1] * m_y, eye[2]));
    const float radius = std::sqrt(place[0]);
    const float angle = 2.0f * qxPi * place[1];
    const float x = radius * std::cos(angle);
    const float half = 0.5f * (1.0f + towards[2]);
    // The axis that is squeezed points upwards.
    const osg::Vec3f up = qxUnit(osg::Vec3f(0, 0, 1) - towards * towards[2]);
    const osg::Vec3f second = up.squareLength() > 0.0f ? up : osg::Vec3f(0, 1, 0);
    const osg::Vec3f first = second.cross(towards);
    const float y =
        qxMixed(std::sqrt(std::max(0.0f, 1.0f - x * x)), radius * std::sin(angle), half);
    const float z = std::sqrt(std::max(0.0f, 1.0f - x * x - y * y));
    const osg::Vec3f normal = first * x + second * y + towards * z;
    return qxUnit(osg::Vec3f(normal[0] * m_x, normal[1] * m_y, std::max(1e-6f, normal[2])));
}

float qxMicrofacets::density(const osg::Vec3f &mirror, const osg::Vec3f &eye) const
{
    return distribution(mirror) * unmasked(eye) * std::max(mirror.dot(eye), 0.0f) / eye[2];
}
