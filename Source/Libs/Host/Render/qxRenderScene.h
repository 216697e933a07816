#pragma once

#include "Render/qxRenderGroup.h"
#include "Render/qxRenderLight.h"

#include <map>
#include <memory>

/// The running host's scene as rays find it: what is shown, its lights and its overlays.
class qxRenderScene {
public:
    explicit qxRenderScene(RTCDevice device);

    /// Takes over what is shown now. A host must be running.
    void update();

    const qxRenderGroup &shown() const { return m_shown; }
    /// Overlays by layer, the farthest first.
    typedef std::map<osg::UInt32, std::unique_ptr<qxRenderGroup>> Overlays;
    const Overlays &overlays() const { return m_overlays; }
    const qxRenderLights &lights() const { return m_lights; }

private:
    qxRenderGroup &overlay(osg::UInt32 layer);
    void updateOverlays();

    RTCDevice m_device;
    qxRenderSources m_sources;
    qxRenderGroup m_shown;
    Overlays m_overlays;
    qxRenderLights m_lights;
};
