#pragma once

#include "Render/qxBackground.h"
#include "Render/qxContour.h"
#include "Render/qxPathTracer.h"
#include "Render/qxPicture.h"
#include "Render/qxPictureFilter.h"
#include "Render/qxRenderScene.h"
#include "Render/qxShadowGround.h"

#include <atomic>

/// Makes one picture of a scene, as its settings say.
class qxPainter {
public:
    qxPainter(const qxRenderScene &scene, const qxPictureSettings &settings);
    qxPainter(const qxPainter &) = delete;

    /// An empty picture when `progress` ends it.
    qxPicture paint(const qxPicture::Progress &progress);

    /// \name For quick pictures that are put together elsewhere: single pixels, once prepared, from
    /// any thread. @{
    /// `shadows` are those of the ground: kept for other painters of the same scene and settings,
    /// computed if empty.
    void prepareSpots(std::vector<float> &shadows);
    /// What the ray through the middle of a pixel sees.
    struct Spot {
        osg::Vec4f colour; ///< as the picture shows it, with its alpha
        float distance; ///< along the ray; infinite for what is behind the scene
        bool isInFront; ///< it is of an overlay
    };
    Spot spot(int x, int y);
    const qxRenderCamera &camera() const { return m_camera; }
    /// Whether what is behind the scene is the same in a whole row, wherever the camera looks, and
    /// what it is there.
    bool hasPlainBackground() const { return m_background.isPlain(); }
    osg::Vec4f plainBackground(int y) const;
    /// What the spots show so far.
    qxPicture::Content content() const;
    /// @}

private:
    struct Sample;
    class Mean;
    class Average;
    typedef qxBackground::Layers Layers; ///< what is in a pixel besides random light

    qxTracer::Scene tracerScene(const qxRenderGroup &group, bool isLit,
                                const qxRenderClipping &clipping) const;
    int tileCount() const;
    void paintTile(int tile);
    static std::vector<bool> noisyOnes(const std::vector<Average> &pixels, int width);
    void addSamples(int x, int y, int count, Average &pixel) const;
    void finish(int x, int y, const Average &pixel);
    Sample sample(int x, int y, int number) const;
    void showFiltered();
    osg::Vec4f shownColour(const Layers &layers, const osg::Vec3f &gathered) const;
    void show(int x, int y, const Layers &layers, const osg::Vec3f &gathered);
    std::size_t place(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_settings.width) + std::size_t(x);
    }

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
    const qxBackground m_background;
    qxRenderLights m_lights;
    const float m_exposure; ///< factor of all light
    std::unique_ptr<qxTracer> m_environment; ///< null without
    std::unique_ptr<qxTracer> m_tracer;
    std::unique_ptr<qxShadowGround> m_ground; ///< null without
    std::vector<qxTracer> m_overlays; ///< the farthest first
    /// Of scattered light and of sharp reflections; none when pixels are shown as they come.
    std::vector<qxPictureFilter> m_filters;
    std::vector<Layers> m_layers; ///< of each pixel, with a filter
    std::atomic<int> m_sides{qxTracer::Nothing}; ///< sides of surfaces, by any ray of the eye
    qxPicture m_picture;
};
