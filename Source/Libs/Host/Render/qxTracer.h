#pragma once

#include "Light/qxEnvironmentLight.h"
#include "Render/qxRay.h"
#include "Render/qxRenderClipping.h"
#include "Render/qxRenderGroup.h"
#include "Render/qxRenderLight.h"
#include "Render/qxSampler.h"
#include "Render/qxSurfacePoint.h"

class qxShading;

/// Finds out which light (radiance) comes along rays: in plain colours, or in hard light with
/// reflections of the surroundings alone. Many threads may ask at once.
class qxTracer {
public:
    struct Scene {
        const qxRenderGroup &group;
        const qxRenderLights &lights;
        const qxRenderClipping &clipping;
        const qxRenderCamera &camera;
        qxEnvironmentLight sky;
        bool isLit; ///< otherwise everything has its own colour, whatever the lights
        float rayWidth; ///< of the eye's rays, in pixels
        const qxTracer *environment; ///< seen where rays leave the scene; null for the sky
    };
    explicit qxTracer(const Scene &scene) : m_scene(scene) {}
    virtual ~qxTracer() = default;

    /// Light that random rays have gathered, with colour and normal, of length 0 to 1, of the
    /// surfaces that it comes from; behind mirrors those of what they show.
    struct Gathered {
        void add(const Gathered &other, const osg::Vec3f &weight, float share);

        osg::Vec3f light;
        osg::Vec3f colour;
        osg::Vec3f normal;
    };
    /// What a surface, or all along a ray, sends to the eye.
    struct Seen {
        osg::Vec3f radiance; ///< of what is lit, besides what random rays have gathered
        Gathered sharp; ///< by sharp reflections on surfaces that show more than these
        Gathered scattered; ///< the rest
        osg::Vec3f plain; ///< of what is not lit, as the picture shows it
        osg::Vec3f through; ///< share of what is straight behind that goes to the eye, besides
    };
    /// Sides of surfaces, to be combined. Only a surface without a back side has backs.
    enum Side { Nothing = 0, Back = 1, Front = 2 };
    struct RayResult : Seen {
        float lit = 0; ///< share of what is lit in the ray
        float transmittance = 1; ///< share of what is behind the scene
        osg::Vec3f tint = osg::Vec3f(1, 1, 1); ///< colour that what is behind the scene gets
        float distance; ///< of the first surface that hides at least half; infinite without
        int sides = Nothing; ///< met on the way, however translucent
    };
    /// As the eye sees it.
    RayResult trace(qxRay ray, qxSampler &sampler) const;
    /// The share of light that gets to the point from that far away.
    osg::Vec3f transmittance(const qxSurfacePoint &hit, const osg::Vec3f &direction,
                             float distance) const;

protected:
    /// What a pass of the material sends to the eye by itself; alpha is not in it.
    virtual Seen seen(const qxSurfacePoint &hit, const qxRenderLayer &layer, const osg::Vec4f &base,
                      float share, qxSampler &sampler) const;

    const Scene &scene() const { return m_scene; }
    /// The nearest surface along a ray, which the clipping plane has limited already.
    bool intersect(const qxRay &ray, qxSurfacePoint &hit) const;
    /// The light from where a ray leaves the scene.
    osg::Vec3f around(const qxRay &ray, qxSampler &sampler) const;

private:
    bool intersect(const qxRay &ray, RTCScene scene, qxSurfacePoint &hit) const;
    void pass(const qxRenderClipping::Crossing &plane, RayResult &result) const;
    void pass(const qxSurfacePoint &hit, qxSampler &sampler, RayResult &result) const;
    void goThrough(const osg::Vec3f &through, RayResult &result) const;
    bool isLit(const qxRenderLayer &layer) const;
    osg::Vec3f reflectedSky(const qxSurfacePoint &hit, const qxShading &shading) const;
    osg::Vec3f direct(const qxSurfacePoint &hit, const qxShading &shading) const;

    const Scene m_scene;
};
