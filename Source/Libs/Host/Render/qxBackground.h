#pragma once

#include "Render/qxTracer.h"
#include "Render/qxViewSettings.h"

class qxRenderScene;

/// What lights a scene from all around, and what is seen behind it.
class qxBackground {
public:
    /// The scene's environment, or what the settings put in its place.
    qxBackground(const qxRenderScene &scene, const qxViewSettings &settings);

    const qxEnvironmentLight &sky() const { return m_sky; }
    /// Whether the nodes of the environment are what lights the scene.
    bool hasGeometry() const { return m_hasGeometry; }

    /// Whether it is also what is seen behind everything.
    bool showsSky() const { return m_showsSky; }

    /// Whether a row of the picture is the same everywhere behind the scene, wherever the camera
    /// looks.
    bool isPlain() const { return !m_showsGeometry && !m_showsSky; }

    /// What a ray of the eye sees.
    struct Layers {
        osg::Vec3f light; ///< of what is lit
        osg::Vec3f plain; ///< of what is not lit, as the picture shows it
        float lit = 0; ///< share of what is lit
        float open = 0; ///< share of what is nothing: there the picture is transparent
    };
    /// Adds the `share` of the ray that gets through the scene, at a height of the picture from 0
    /// to 1. `geometry` shows the nodes of the environment; null without.
    void add(const qxRay &ray, float height, float share, const qxTracer *geometry,
             Layers &layers) const;

private:
    bool m_hasGeometry;
    bool m_showsGeometry;
    bool m_showsSky;
    bool m_isOpen;
    osg::Vec3f m_top;
    osg::Vec3f m_bottom;
    qxEnvironmentLight m_sky;
};
