#pragma once

#include "Render/qxRenderMath.h"

/// The surroundings of the scene, as things reflect them: a bright room with a large lamp, up along
/// the y axis. The formulas for rough and matt surfaces are exact for the room and close for the
/// lamp.
class qxSky {
public:
    explicit qxSky(float strength) : m_strength(strength) {}

    /// The light from a direction (of length 1), smoothed as a surface of that roughness mirrors
    /// it.
    osg::Vec3f mirrored(const osg::Vec3f &direction, float roughness) const;
    osg::Vec3f light(const osg::Vec3f &direction) const { return mirrored(direction, 0.0f); }
    /// What a white matt surface with that normal scatters.
    osg::Vec3f scattered(const osg::Vec3f &normal) const;

private:
    float m_strength;
};
