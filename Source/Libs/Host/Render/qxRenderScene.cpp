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
    read();
    build();
    updateLight(light);
}

void qxRenderScene::build()
{
    m_shown.build();
    m_environment.build();
    for (const auto &overlay : m_overlays)
        overlay.second->build();
}

void qxRenderScene::read()
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
    readEnvironment();
    readPicture();
    readOverlays();
    m_isLightOld =
        m_isLightOld || m_sources.isOther() || m_environment.isOther() || m_shown.isOther();
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

void qxRenderScene::readEnvironment()
{
    m_environment.begin();
    qxShownListener listener;
    listener.part = [this](const qxShownPart &part) { m_environment.add(part); };
    qxWalkShown(qxScene::current()->environment(), listener);
    m_environment.finish();
}

void qxRenderScene::readPicture()
{
    m_pictureId = qxEnvironmentPicture::shownBy(qxScene::current()->environment());
    if (m_pictureId != 0 && !lightOfPicture(m_pictureId))
        m_pictureId = 0;
}

const qxEnvironmentLight *qxRenderScene::ownLight() const
{
    const std::optional<qxEnvironmentLight> &light =
        ownPicture() ? m_pictures.at(m_pictureId) : m_light;
    return light ? &*light : nullptr;
}

/// A picture of the environment's nodes is taken each time, because nobody tells which changes it
/// shows; what takes long follows only when it differs. Views that move have no time for that.
void qxRenderScene::updateLight(Light light)
{
    if (ownPicture() || m_environment.instances().empty()) {
        m_light.reset();
        m_lightPicture = qxLightPicture();
        return;
    }
    if (light == KnownLight && !m_isLightOld && !m_lightPicture.isEmpty())
        return;
    m_isLightOld = false;
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

void qxRenderScene::readOverlays()
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
