#pragma once

#include "Render/qxRenderMath.h"

/// The surrounding light for reflections: a gradient along the y axis, maybe with a large lamp. The
/// formulas for rough and diffuse surfaces are exact without the lamp and approximate with it.
class qxSky {
public:
    /// A bright room with a lamp.
    static qxSky room(float strength);
    /// Without a lamp; the light straight below and straight above.
    qxSky(const osg::Vec3f &below, const osg::Vec3f &above) : m_below(below), m_above(above) {}

    /// The light from a direction (of length 1), blurred as by a surface of that roughness.
    osg::Vec3f mirrored(const osg::Vec3f &direction, float roughness) const;
    osg::Vec3f light(const osg::Vec3f &direction) const { return mirrored(direction, 0.0f); }
    /// A direction and the light from there.
    struct Sample {
        osg::Vec3f direction;
        osg::Vec3f light;
        float density; ///< probability per solid angle that sample() gives this direction
    };
    /// A random direction; bright ones come more often. `place` are random numbers.
    Sample sample(const osg::Vec2f &place) const;
    /// The probability per solid angle of sample().
    float density(const osg::Vec3f &direction) const;
    /// The light that a white diffuse surface with that normal reflects.
    osg::Vec3f scattered(const osg::Vec3f &normal) const;

private:
    osg::Vec3f light(float height, float slope) const;

    osg::Vec3f m_below;
    osg::Vec3f m_above;
    osg::Vec3f m_lamp;
};
