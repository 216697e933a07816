#pragma once

#include "Render/qxTracer.h"

/// Finds out which light comes along rays by following random paths: soft shadows, reflections of
/// the scene, light from surface to surface.
///
/// At each point one ray asks for the light of a lamp or of the surroundings and one goes on. What
/// both could find counts by the power heuristic (Veach and Guibas, "Optimally Combining Sampling
/// Techniques for Monte Carlo Rendering", 1995).
class qxPathTracer : public qxTracer {
public:
    using qxTracer::qxTracer;

protected:
    Seen seen(const qxSurfacePoint &hit, const qxRenderLayer &layer, const osg::Vec4f &base,
              float share, qxSampler &sampler) const override;

private:
    class Path;
    struct Asked;

    Gathered sharp(Path path, qxSampler sampler) const;
    bool follow(Path &path, qxSampler &sampler) const;
    osg::Vec3f direct(const Path &path, const qxShading &shading, qxSampler &sampler) const;
    osg::Vec3f found(Asked asked, const qxSurfacePoint &hit, qxSampler &sampler) const;
    Asked askedLamp(const Path &path, const qxShading &shading, float &random) const;
    Asked askedSky(const Path &path, const qxShading &shading, const osg::Vec2f &place) const;
    bool findNext(Path &path, qxSampler &sampler) const;
    bool stopsAt(Path &path, const qxRenderLayer &layer, qxSampler &sampler) const;
};
