#pragma once

#include "Render/qxContour.h"
#include "Render/qxPicture.h"
#include "Render/qxPictureFilter.h"
#include "Render/qxRenderScene.h"
#include "Render/qxTracer.h"

#include <atomic>

/// Makes one picture of a scene, as its settings say.
class qxPainter {
public:
    qxPainter(const qxRenderScene &scene, const qxPictureSettings &settings);
    qxPainter(const qxPainter &) = delete;

    /// An empty picture when `progress` ends it.
    qxPicture paint(const qxPicture::Progress &progress);

    /// \name For quick pictures that are put together elsewhere: single pixels, from any thread.
    /// @{
    /// What the ray through the middle of a pixel sees.
    struct Spot {
        osg::Vec3f colour; ///< as the picture shows it
        float distance; ///< along the ray; infinite for what is behind the scene
        bool isInFront; ///< it is of an overlay
    };
    Spot spot(int x, int y);
    const qxRenderCamera &camera() const { return m_camera; }
    /// Whether what is behind the scene is the same in a whole row, wherever the camera looks, and
    /// what it is there.
    bool hasPlainBackground() const { return !m_environment; }
    osg::Vec3f plainBackground(int y) const;
    /// What the spots show so far.
    qxPicture::Content content() const;
    /// @}

private:
    struct Sample;
    class Average;

    qxTracer::Scene tracerScene(const qxRenderGroup &group, qxTracer::Mode mode,
                                const qxRenderClipping &clipping) const;
    int tileCount() const;
    void paintTile(int tile);
    static std::vector<bool> noisyOnes(const std::vector<Average> &pixels, int width);
    void addSamples(int x, int y, int count, Average &pixel) const;
    void finish(int x, int y, const Average &pixel);
    Sample sample(int x, int y, int number) const;
    osg::Vec3f background(const qxRay &ray, float y, qxSampler &sampler) const;
    void filterBand(int band);
    void show(int x, int y, const osg::Vec3f &light);

    const qxRenderGroup &m_shown;
    const qxPictureSettings m_settings;
    const int m_samples; ///< at most, in each pixel
    const int m_tile; ///< width and height in pixels
    const int m_across; ///< tiles in a row
    const bool m_rayTracing;
    const qxRenderCamera m_camera;
    const qxRenderClipping m_clipping;
    const qxRenderClipping m_noClipping;
    const qxContour m_contour;
    const osg::Vec3f m_contourLight;
    const osg::Vec3f m_top;
    const osg::Vec3f m_bottom;
    qxRenderLights m_lights;
    qxSky m_sky;
    std::unique_ptr<qxTracer> m_environment; ///< null without
    std::unique_ptr<qxTracer> m_tracer;
    std::vector<qxTracer> m_overlays; ///< the farthest first
    std::unique_ptr<qxPictureFilter> m_filter; ///< null when pixels are shown as they come
    std::atomic<int> m_sides{qxTracer::Nothing}; ///< sides of surfaces, by any ray of the eye
    qxPicture m_picture;
};
