#pragma once

#include "Animation/qxPose.h"
#include "Light/qxEnvironmentLight.h"
#include "Render/qxRenderGroup.h"
#include "Render/qxRenderLight.h"
#include "Scene/qxClipping.h"

#include <map>
#include <memory>
#include <optional>

/// The running host's scene for ray tracing: visible geometries, lights, environment and overlays.
class qxRenderScene {
public:
    explicit qxRenderScene(RTCDevice device);

    /// How the light of the environment's nodes is found.
    enum Light {
        NewLight, ///< anew
        KnownLight ///< the last one may do where no edit is known of: others are not seen in it
    };
    /// Reads the present scene and makes it ready to be drawn. A host must be running.
    void update(Light light = NewLight);
    /// The same without what only drawing needs: the trees and bounds of the groups, and the light
    /// of the environment's nodes, stay as they were.
    void read();
    void build(); ///< makes these trees and bounds, where they are out of date

    const qxRenderGroup &shown() const { return m_shown; }
    /// Overlays by layer, the farthest first.
    typedef std::map<osg::UInt32, std::unique_ptr<qxRenderGroup>> Overlays;
    const Overlays &overlays() const { return m_overlays; }
    /// The environment; without instances if there is none.
    const qxRenderGroup &environment() const { return m_environment; }
    const qxRenderLights &lights() const { return m_lights; }
    /// Whether its environment is a picture of all directions, or has one behind its nodes.
    bool ownPicture() const { return m_pictureId != 0; }
    /// Another number, never given before, when an update found that pictures may look otherwise,
    /// apart from what the camera does.
    std::uint64_t revision() const { return m_revision; }
    /// The environment as light, as the middle of the scene sees it; null without one.
    const qxEnvironmentLight *ownLight() const;

private:
    void noteChange();
    void readPicture();
    qxRenderGroup &overlay(osg::UInt32 layer);
    void readEnvironment();
    void updateLight(Light light);
    const std::optional<qxEnvironmentLight> &lightOfPicture(osg::UInt32 id);
    void readOverlays();

    RTCDevice m_device;
    qxRenderSources m_sources;
    qxRenderGroup m_shown;
    qxRenderGroup m_environment;
    Overlays m_overlays;
    qxRenderLights m_lights;
    qxRenderLights m_lightsBefore; ///< this and the following: when `revision` changed last
    qxPose m_pose;
    qxClipping m_clipping;
    std::uint64_t m_revision = 0;
    bool m_isOther = true; ///< the overlays
    bool m_isLightOld = true; ///< something has changed that it may depend on
    osg::UInt32 m_pictureId = 0; ///< of the picture that is shown
    osg::UInt32 m_notedPicture = 0; ///< the same, at the last change
    /// Those that were shown, by their ids; null for one that cannot be read.
    std::map<osg::UInt32, std::optional<qxEnvironmentLight>> m_pictures;
    qxLightPicture m_lightPicture; ///< of the environment's nodes; empty without
    std::optional<qxEnvironmentLight> m_light; ///< the same
};
