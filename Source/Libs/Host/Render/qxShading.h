#pragma once

#include "Render/qxRenderMath.h"

class qxEnvironmentLight;

/// The reflection model of a surface: diffuse below microfacets, as in appendix B of the glTF 2.0
/// specification. All directions have length 1 and point away from the surface.
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
    /// The reflected light of the whole sky. `hidden` is what of its scattered light does not get
    /// here.
    osg::Vec3f reflectedSky(const qxEnvironmentLight &sky,
                            const osg::Vec3f &hidden = osg::Vec3f()) const;

    /// A direction of incoming light, and the share of it that is reflected to the eye.
    struct Bounce {
        osg::Vec3f direction;
        osg::Vec3f share; ///< reflected() by the density; null when it leads into the surface
        float density; ///< probability per solid angle that bounce() gives this direction
    };
    /// One random direction; the average over many of them is the reflected light. `choice` and
    /// `place` are random numbers.
    Bounce bounce(float choice, const osg::Vec2f &place) const;
    /// The probability per solid angle of bounce().
    float density(const osg::Vec3f &toLight) const;

private:
    osg::Vec3f fresnel(float cosine) const;
    osg::Vec3f mattDirection(const osg::Vec2f &place) const;
    osg::Vec3f mirrorDirection(const osg::Vec2f &place) const;

    qxFrame m_frame;
    osg::Vec3f m_toEye;
    float m_eyeCosine;
    float m_roughness;
    float m_alpha; ///< squared roughness
    osg::Vec3f m_matt; ///< diffuse colour
    osg::Vec3f m_mirror; ///< specular reflectance at normal incidence
    float m_mirrorChance; ///< that a bounce is one of the mirrors
};
