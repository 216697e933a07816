#pragma once

#include "Render/qxRenderMath.h"

/// The distribution of microscopic mirrors on a surface: Trowbridge-Reitz with Smith's masking and
/// shadowing (appendix B.3.2 of the glTF 2.0 specification; along two axes as in
/// KHR_materials_anisotropy). All directions are relative to the surface, whose normal is z, have
/// length 1 and point away from it.
class qxMicrofacets {
public:
    /// The squared roughness along the x and the y axis.
    qxMicrofacets(float x, float y) : m_x(x), m_y(y) {}

    /// How many mirrors have this normal.
    float distribution(const osg::Vec3f &mirror) const;
    /// How much of the mirrors is seen by eye and light, divided by four times both cosines.
    float visibility(const osg::Vec3f &light, const osg::Vec3f &eye) const;
    /// The share of mirrors that are not behind others as seen from a direction.
    float unmasked(const osg::Vec3f &direction) const;
    /// The normal of a mirror that the eye sees; `place` are random numbers.
    osg::Vec3f seenMirror(const osg::Vec3f &eye, const osg::Vec2f &place) const;
    /// The probability per solid angle of seenMirror().
    float density(const osg::Vec3f &mirror, const osg::Vec3f &eye) const;

private:
    float stretched(const osg::Vec3f &direction) const;

    float m_x;
    float m_y;
};
