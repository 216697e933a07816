#pragma once

#include "Render/qxRenderMath.h"

/// The light that comes from all around the scene, as things reflect it: it changes evenly from
/// below to above along the y axis, and there may be a large lamp. The formulas for rough and matt
/// surfaces are exact without the lamp and close with it.
class qxSky {
public:
    /// A bright room with a lamp.
    static qxSky room(float strength);
    /// Without a lamp; the light straight below and straight above.
    qxSky(const osg::Vec3f &below, const osg::Vec3f &above) : m_below(below), m_above(above) {}

    /// The light from a direction (of length 1), smoothed as a surface of that roughness mirrors
    /// it.
    osg::Vec3f mirrored(const osg::Vec3f &direction, float roughness) const;
    osg::Vec3f light(const osg::Vec3f &direction) const { return mirrored(direction, 0.0f); }
    /// What a white matt surface with that normal scatters.
    osg::Vec3f scattered(const osg::Vec3f &normal) const;

private:
    osg::Vec3f light(float height, float slope) const;

    osg::Vec3f m_below;
    osg::Vec3f m_above;
    osg::Vec3f m_lamp;
};
