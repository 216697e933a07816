#pragma once

#include "Render/qxRay.h"
#include "Render/qxRenderClipping.h"
#include "Render/qxRenderGroup.h"
#include "Render/qxRenderLight.h"
#include "Render/qxSampler.h"
#include "Light/qxEnvironmentLight.h"
#include "Render/qxSurfacePoint.h"

class qxShading;

/// Finds out which light (radiance) comes along rays. Many threads may ask at once.
class qxTracer {
public:
    enum Mode {
        Flat, ///< everything has its own colour, whatever the lights
        HardLight,
        RayTracing ///< with soft shadows and reflections of the scene
    };
    struct Scene {
        const qxRenderGroup &group;
        const qxRenderLights &lights;
        const qxRenderClipping &clipping;
        const qxRenderCamera &camera;
        qxEnvironmentLight sky;
        Mode mode;
        float rayWidth; ///< of the eye's rays, in pixels
        const qxTracer *environment; ///< seen where rays leave the scene; null for the sky
    };
    explicit qxTracer(const Scene &scene);

    /// Sides of surfaces, to be combined. Only a surface without a back side has backs.
    enum Side { Nothing = 0, Back = 1, Front = 2 };
    struct RayResult {
        osg::Vec3f radiance; ///< of lit surfaces
        float lit = 0; ///< share of the ray that ends at lit surfaces
        osg::Vec3f plain; ///< of what is shown in its own colour: not lit, not exposed
        osg::Vec3f colour; ///< of the surfaces themselves, and their normal, of length 0 to 1
        osg::Vec3f normal;
        float transmittance = 1; ///< share of what is behind the scene
        float distance; ///< of the first surface that hides at least half; infinite without
        int sides = Nothing; ///< met on the way, however translucent
    };
    /// As the eye sees it.
    RayResult trace(const qxRay &ray, qxSampler &sampler) const;

private:
    /// What a point would reflect of a light to the eye, if nothing were in between.
    struct LightSample {
        osg::Vec3f light;
        osg::Vec3f toLight;
        float distance;
        bool shadow;
    };

    RayResult radianceAlong(qxRay ray, int depth, qxSampler &sampler) const;
    float widthAt(const qxSurfacePoint &hit) const;
    void pass(const qxRenderClipping::Crossing &plane, RayResult &result) const;
    void pass(const qxSurfacePoint &hit, int depth, qxSampler &sampler, RayResult &result) const;
    osg::Vec3f shaded(const qxSurfacePoint &hit, const qxRenderLayer &layer,
                      const osg::Vec3f &colour, int depth, qxSampler &sampler) const;
    osg::Vec3f reflectedSky(const qxSurfacePoint &hit, const qxShading &shading) const;
    osg::Vec3f direct(const qxSurfacePoint &hit, const qxShading &shading, int depth,
                      qxSampler &sampler) const;
    LightSample sampleOf(const qxRenderLight &light, const qxSurfacePoint &hit,
                         const qxShading &shading) const;
    LightSample chosenSample(const qxSurfacePoint &hit, const qxShading &shading,
                             float random) const;
    osg::Vec3f shadowed(const LightSample &sample, const qxSurfacePoint &hit,
                        qxSampler &sampler) const;
    osg::Vec3f reflectedScene(const qxSurfacePoint &hit, const qxShading &shading, int depth,
                              qxSampler &sampler) const;
    osg::Vec3f around(const qxRay &ray, qxSampler &sampler) const;
    bool intersect(const qxRay &ray, unsigned int mask, qxSurfacePoint &hit) const;
    /// The share of light that gets to the point from that far away.
    float transmittance(const qxSurfacePoint &hit, const osg::Vec3f &direction,
                        float distance) const;

    const Scene m_scene;
};
