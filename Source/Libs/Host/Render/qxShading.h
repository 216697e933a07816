#pragma once

#include "Render/qxRenderMath.h"

class qxSky;

/// How a point of a surface reflects light: a matt part below microscopic mirrors, as appendix B of
/// the glTF 2.0 specification has it. All directions have length 1 and point away from the surface.
class qxShading {
public:
    struct Surface {
        osg::Vec3f base;
        float metallic;
        float roughness;
    };
    /// Seen from direction `toEye`.
    qxShading(const Surface &surface, const osg::Vec3f &normal, const osg::Vec3f &toEye);

    /// The share of the light from a direction that goes to the eye, times the cosine of the angle
    /// that it arrives at.
    osg::Vec3f reflected(const osg::Vec3f &toLight) const;
    /// What comes from the whole sky, with nothing in its way.
    osg::Vec3f reflectedSky(const qxSky &sky) const;

    /// A direction from which light comes to the eye, and the share of it that does.
    struct Bounce {
        osg::Vec3f direction;
        osg::Vec3f share; ///< null when the direction leads into the surface
    };
    /// One of many such directions, whose average is all the light there is; `choice` and `place`
    /// are random.
    Bounce bounce(float choice, const osg::Vec2f &place) const;

private:
    osg::Vec3f fresnel(float cosine) const;
    Bounce mattBounce(const osg::Vec2f &place) const;
    Bounce mirrorBounce(const osg::Vec2f &place) const;

    qxFrame m_frame;
    osg::Vec3f m_toEye;
    float m_eyeCosine;
    float m_roughness;
    float m_alpha; ///< squared roughness
    osg::Vec3f m_matt; ///< colour of the matt part
    osg::Vec3f m_mirror; ///< what the mirrors reflect of light from straight above
};
