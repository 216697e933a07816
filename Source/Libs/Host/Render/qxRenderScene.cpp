#include "Render/qxRenderScene.h"

#include "Light/qxEnvironmentPicture.h"
#include "Render/qxLightCamera.h"
#include "Scene/qxScene.h"

#include <atomic>

qxRenderScene::qxRenderScene(RTCDevice device)
    : m_device(device), m_shown(device, m_sources), m_environment(device, m_sources)
{
}

void qxRenderScene::update(Light light)
{
    const qxScene &scene = *qxScene::current();
    m_sources.update(scene.overlayRoot());
    m_lights = qxRenderLights();
    m_shown.begin();
    qxShownListener listener;
    listener.part = [this](const qxShownPart &part) { m_shown.add(part); };
    listener.light = [this](const osg::LightPtr &core, const osg::Matrix &toWorld) {
        m_lights.add(core, toWorld);
    };
    qxWalkShown(scene.root(), listener);
    m_shown.finish();
    updateEnvironment();
    updateLight(light);
    updateOverlays();
    noteChange();
}

void qxRenderScene::noteChange()
{
    static std::atomic<std::uint64_t> last{0};
    const qxPose &pose = qxPose::the();
    const bool isSameLight = m_lights == m_lightsBefore;
    const bool isSamePose = m_pose.matrices == pose.matrices && m_pose.weights == pose.weights;
    if (isSamePose && isSameLight && m_clipping == qxClipping::the() && !m_sources.isOther()
        && !m_shown.isOther() && !m_environment.isOther() && !m_isOther
        && m_notedPicture == m_pictureId)
        return;
    m_pose = pose;
    m_lightsBefore = m_lights;
    m_notedPicture = m_pictureId;
    m_clipping = qxClipping::the();
    m_revision = ++last;
}

void qxRenderScene::updateEnvironment()
{
    m_environment.begin();
    qxShownListener listener;
    listener.part = [this](const qxShownPart &part) { m_environment.add(part); };
    qxWalkShown(qxScene::current()->environment(), listener);
    m_environment.finish();
}

/// A picture of the environment's nodes is taken each time, because nobody tells which changes it
/// shows; what takes long follows only when it differs. Views that move have no time for that.
void qxRenderScene::updateLight(Light light)
{
    m_pictureId = qxEnvironmentPicture::shownBy(qxScene::current()->environment());
    if (m_pictureId != 0) {
        m_light = lightOfPicture(m_pictureId);
        m_lightPicture = qxLightPicture();
        if (!m_light)
            m_pictureId = 0;
    }
    if (m_pictureId != 0)
        return;
    if (m_environment.instances().empty()) {
        m_light.reset();
        m_lightPicture = qxLightPicture();
        return;
    }
    const bool isOther = m_sources.isOther() || m_environment.isOther() || m_shown.isOther();
    if (light == KnownLight && !isOther && !m_lightPicture.isEmpty())
        return;
    qxLightPicture picture = qxTakeLightPicture(m_environment, m_shown.bounds());
    if (picture.light == m_lightPicture.light)
        return;
    m_light.emplace(picture);
    m_lightPicture = std::move(picture);
}

/// Variants go back and forth between some pictures; large ones take a second to read.
const std::optional<qxEnvironmentLight> &qxRenderScene::lightOfPicture(osg::UInt32 id)
{
    const std::size_t mostKept = 4;
    if (m_pictures.size() > mostKept && m_pictures.count(id) == 0)
        m_pictures.clear();
    const auto [known, isNew] = m_pictures.try_emplace(id);
    if (isNew)
        known->second = qxEnvironmentPicture::lightOf(id);
    return known->second;
}

void qxRenderScene::updateOverlays()
{
    for (auto &overlay : m_overlays)
        overlay.second->begin();
    qxShownListener listener;
    listener.part = [this](const qxShownPart &part) { overlay(part.layer).add(part); };
    qxWalkShown(qxScene::current()->overlayRoot(), listener);
    m_isOther = false;
    for (auto overlay = m_overlays.begin(); overlay != m_overlays.end();) {
        overlay->second->finish();
        m_isOther = m_isOther || overlay->second->isOther();
        overlay =
            overlay->second->instances().empty() ? m_overlays.erase(overlay) : std::next(overlay);
    }
}

qxRenderGroup &qxRenderScene::overlay(osg::UInt32 layer)
{
    std::unique_ptr<qxRenderGroup> &group = m_overlays[layer];
    if (!group) {
        group = std::make_unique<qxRenderGroup>(m_device, m_sources);
        group->begin();
    }
    return *group;
}
