#pragma once

#include "Render/qxAlbedo.h"
#include "Render/qxMicrofacets.h"

#include <array>

class qxEnvironmentLight;

/// How a surface reflects light and lets it through, as appendix B of the glTF 2.0 specification
/// and its material extensions define it. All directions have length 1 and point away from the
/// surface.
class qxShading {
public:
    /// What is known of a point of a surface; the numbers are those of qxSurface.
    struct Surface {
        osg::Vec3f base = osg::Vec3f(1, 1, 1);
        float metallic = 0;
        float roughness = 1;
        osg::Vec3f normal = osg::Vec3f(0, 0, 1); ///< on the side of the eye
        osg::Vec3f emission;
        float occlusion = 1; ///< share of the surroundings that is seen
        float ior = 1.5f;
        float specular = 1;
        osg::Vec3f specularColour = osg::Vec3f(1, 1, 1);
        float coat = 0;
        float coatRoughness = 0;
        osg::Vec3f coatNormal = osg::Vec3f(0, 0, 1); ///< as `normal`
        osg::Vec3f sheen;
        float sheenRoughness = 0;
        float transmission = 0;
        bool isBody = false; ///< bounds a body; otherwise it is a thin wall
        bool isInside = false; ///< the eye is in that body
        osg::Vec3f attenuation; ///< in the body, per length
        float iridescence = 0;
        float filmIor = 1.3f;
        float filmThickness = 400;
        float anisotropy = 0;
        osg::Vec3f grain = osg::Vec3f(1, 0, 0); ///< along which highlights are longer
        float diffuseTransmission = 0;
        osg::Vec3f diffuseTransmissionColour = osg::Vec3f(1, 1, 1);
    };
    /// What of its light is looked at: sharp reflections on coats and on what is no metal, or all
    /// the rest. Together they are the whole.
    enum Part { Whole, Sharp, Rest };
    /// Seen from direction `toEye`.
    qxShading(const Surface &surface, const osg::Vec3f &toEye, Part part = Whole);

    /// Whether a surface has sharp reflections besides the rest.
    static bool hasSharpPart(const Surface &surface)
    {
        return hasSharpCoat(surface) || hasSharpMirror(surface);
    }

    /// The share of the light from a direction that goes to the eye, times the cosine of the angle
    /// that it arrives at. Also for light from behind.
    osg::Vec3f reflected(const osg::Vec3f &toLight) const;
    /// The reflected light of the whole sky, where nothing but the surface's own occlusion hides
    /// it. Without what comes from behind. `hidden` is what of its scattered light does not get
    /// here.
    osg::Vec3f reflectedSky(const qxEnvironmentLight &sky,
                            const osg::Vec3f &hidden = osg::Vec3f()) const;
    /// The share of the light straight behind that goes to the eye; as if nothing were refracted.
    osg::Vec3f straightThrough() const;
    /// Whether light from behind goes to the eye.
    bool letsThrough() const { return m_clear > 0.0f || m_surface.diffuseTransmission > 0.0f; }
    /// What the surface itself emits.
    osg::Vec3f emitted() const { return m_surface.emission * m_coatRest; }

    /// A direction of incoming light, and the share of it that is reflected to the eye.
    struct Bounce {
        osg::Vec3f direction;
        osg::Vec3f share; ///< reflected() by the density; null when no light comes from there
        float density = 0; ///< probability per solid angle that bounce() gives this direction
        bool through = false; ///< leads to the other side of the surface
        osg::Vec3f attenuation; ///< there, per length; null outside of bodies
    };
    /// One random direction; the average over many of them is the reflected light. `choice` and
    /// `place` are random numbers.
    Bounce bounce(float choice, const osg::Vec2f &place) const;
    /// The probability per solid angle of bounce().
    float density(const osg::Vec3f &toLight) const;

private:
    enum Lobe { Mirror, Matt, Coat, Through, MattThrough, Lobes };
    struct Layer {
        osg::Vec3f normal; ///< reflectance at right angles and at grazing ones
        osg::Vec3f edge;
        osg::Vec3f repeated; ///< reflectance of light that met several mirrors
    };

    static bool hasSharpCoat(const Surface &surface);
    static bool hasSharpMirror(const Surface &surface);
    void setGrain();
    static osg::Vec3f repeatedBy(const Layer &layer, const qxAlbedo::Split &mean);
    Layer setLayers();
    void setBase(const Layer &metal);
    void setThrough(const osg::Vec3f &solid, float repeatedEye);
    void setCoatAndSheen();
    typedef std::array<float, Lobes> Chances;
    const Chances &chances() const;
    Chances newChances() const;
    float denseCosine(float cosine) const;
    osg::Vec3f fresnel(const Layer &layer, float cosine) const;
    float throughBase(float mirrorCosine) const;
    float passed(const qxAlbedo::Split &albedo) const;
    float sheenRest(float cosine) const;
    osg::Vec3f baseReflected(const osg::Vec3f &light) const;
    osg::Vec3f baseTransmitted(const osg::Vec3f &light) const;
    osg::Vec3f coatReflected(const osg::Vec3f &toLight) const;
    osg::Vec3f refractionMirror(const osg::Vec3f &light) const;
    float refracted(const osg::Vec3f &light, const osg::Vec3f &mirror) const;
    float throughDensity(const osg::Vec3f &light) const;
    osg::Vec3f throughDirection(const osg::Vec2f &place) const;
    osg::Vec3f mirrorDirection(const osg::Vec2f &place) const;
    osg::Vec3f direction(float choice, const osg::Vec2f &place) const;

    const Surface m_surface;
    bool m_showsMirror; ///< in the part that is looked at, as well as:
    bool m_showsCoat;
    bool m_showsRest;
    qxFrame m_frame;
    osg::Vec3f m_eye; ///< relative to the surface
    float m_roughness;
    qxMicrofacets m_mirrors;
    qxAlbedo m_albedo;
    qxAlbedo::Split m_eyeAlbedo;
    Layer m_dielectric;
    Layer m_layer; ///< of dielectric and metal, mixed
    osg::Vec3f m_matt; ///< diffuse colour by pi, where the mirrors let all light through
    float m_mattMean = 1; ///< share of light that passes the mirrors, from all around
    osg::Vec3f m_repeated; ///< light between the mirrors, by pi
    float m_repeatedMean = 0; ///< share of light that a single mirror does not reflect
    float m_clear = 0; ///< of what passes the mirrors: share that goes on through the surface
    osg::Vec3f m_mattThrough; ///< as m_matt, from behind
    osg::Vec3f m_repeatedThrough; ///< as m_repeated, from behind
    float m_refraction = 1; ///< index on the side of the eye by that on the other one
    float m_sheenPeak = 0; ///< 0 without sheen
    float m_coatShare = 0; ///< 0 without a coat
    float m_coatRest = 1;
    qxFrame m_coatFrame;
    osg::Vec3f m_coatEye;
    qxMicrofacets m_coatMirrors;
    mutable Chances m_chances; ///< of bounces; only random ways need them
    mutable bool m_hasChances = false;
};
