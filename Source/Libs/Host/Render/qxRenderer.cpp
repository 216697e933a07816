#include "Render/qxRenderer.h"

#include "Cameras/qxMainView.h"
#include "Render/qxPainter.h"
#include "Render/qxPictureDigest.h"
#include "Render/qxRenderPicking.h"
#include "Render/qxReprojection.h"
#include "Render/qxSceneLighting.h"
#include "Render/qxTiles.h"
#include "Scene/qxScene.h"
#include "qxLog.h"
#include "qxNodeWalk.h"

#include <algorithm>
#include <new>
#include <string>

namespace {

bool isPossible(const qxPictureSettings &settings)
{
    const auto fits = [](int size) { return size > 0 && size <= qxPictureSettings::largest; };
    if (fits(settings.width) && fits(settings.height))
        return true;
    qxLog::error("A picture cannot have %d by %d pixels", settings.width, settings.height);
    return false;
}

void reportError(void *failed, RTCError, const char *text)
{
    *static_cast<bool *>(failed) = true;
    qxLog::error("Rendering failed: %s", text);
}

} // namespace

/// What is kept between pictures.
struct qxRenderer::Parts {
    Parts()
    {
        const int threads = qxProgramThreads();
        const std::string asked = "threads=" + std::to_string(threads);
        device.reset(rtcNewDevice(threads > 0 ? asked.c_str() : nullptr));
        if (device)
            rtcSetDeviceErrorFunction(device.get(), &reportError, &failed);
    }

    /// What `work` gives with the scene as it is now; an empty result, with the reason in the log,
    /// when there can be none.
    template <class Work>
    auto withScene(const qxPictureSettings &settings, const Work &work,
                   qxRenderScene::Light light = qxRenderScene::NewLight) -> decltype(work())
    {
        return withSceneRead(
            settings, [light](qxRenderScene &read) { read.update(light); }, work);
    }
    /// The same when `read` reads it.
    template <class Read, class Work>
    auto withSceneRead(const qxPictureSettings &settings, const Read &read, const Work &work)
        -> decltype(work());
    osg::NodePtr nodeAt(const qxPictureSettings &settings, float x, float y) const;

    qxEmbreeDevice device;
    bool failed = false;
    std::unique_ptr<qxRenderScene> scene;
};

template <class Read, class Work>
auto qxRenderer::Parts::withSceneRead(const qxPictureSettings &settings, const Read &read,
                                      const Work &work) -> decltype(work())
{
    if (!qxScene::current() || !isPossible(settings))
        return {};
    if (!device) {
        qxLog::error("Rendering failed: this processor is not supported");
        return {};
    }
    failed = false;
    try {
        if (!scene)
            scene = std::make_unique<qxRenderScene>(device.get());
        read(*scene);
        auto result = failed ? decltype(work())() : work();
        if (!failed)
            return result;
    } catch (const std::bad_alloc &) {
        qxLog::error("Rendering failed: not enough memory");
    }
    scene.reset();
    return {};
}

osg::NodePtr qxRenderer::Parts::nodeAt(const qxPictureSettings &settings, float x, float y) const
{
    const qxRenderGroup &group = scene->shown();
    const qxRenderCamera camera(qxMainView::the().camera, group.bounds(), settings.width,
                                settings.height);
    const qxRenderClipping clipping(qxClipping::the(), group.bounds());
    qxRay ray = camera.ray(x, y);
    clipping.limit(ray);
    if (clipping.hidesScene() || !(ray.near < ray.far))
        return osg::NullFC;
    return qxNodeWithId(qxNodeAlong(ray, group));
}

qxRenderer::qxRenderer() : m_parts(std::make_unique<Parts>()) {}

qxRenderer::~qxRenderer() = default;

qxPicture qxRenderer::render(const qxPictureSettings &settings, const qxPicture::Progress &progress)
{
    return m_parts->withScene(settings,
                              [&] { return qxPainter(*m_parts->scene, settings).paint(progress); });
}

qxRenderer::Drawing qxRenderer::prepared(const qxPictureSettings &settings)
{
    return m_parts->withScene(settings, [&] {
        const auto painter = std::make_shared<qxPainter>(*m_parts->scene, settings);
        return Drawing(
            [painter](const qxPicture::Progress &progress) { return painter->paint(progress); });
    });
}

qxRenderer::Drawing qxRenderer::preparedMoving(const qxPictureSettings &settings,
                                               qxReprojection &memory, int drawn)
{
    qxPictureSettings quick = settings;
    quick.quality = qxPictureSettings::Quick;
    const auto prepare = [&] {
        memory.forgetOthers(m_parts->scene->revision());
        const auto painter = std::make_shared<qxPainter>(*m_parts->scene, quick);
        return Drawing([painter, quick, drawn, &memory](const qxPicture::Progress &progress) {
            return memory.paint(*painter, quick, drawn, progress);
        });
    };
    const bool isWhole = drawn >= settings.width * settings.height;
    return m_parts->withScene(settings, prepare,
                              isWhole ? qxRenderScene::NewLight : qxRenderScene::KnownLight);
}

qxPicture qxRenderer::renderMoving(const qxPictureSettings &settings, qxReprojection &memory,
                                   int drawn)
{
    const Drawing drawing = preparedMoving(settings, memory, drawn);
    return drawing ? drawing({}) : qxPicture();
}

QByteArray qxRenderer::fingerprint(const qxPictureSettings &settings)
{
    return m_parts->withSceneRead(
        settings, [](qxRenderScene &scene) { scene.read(); },
        [&] { return qxPictureDigest(*m_parts->scene, settings); });
}

qxRenderer::View qxRenderer::view(const qxPictureSettings &settings)
{
    return m_parts->withScene(settings, [&] {
        const qxBox &shown = m_parts->scene->shown().bounds();
        const qxRenderCamera camera(qxMainView::the().camera, shown, settings.width,
                                    settings.height);
        return View{camera.plain(), shown.isEmpty() ? osg::Vec3f() : shown.centre()};
    });
}

qxSceneLighting qxRenderer::lighting(const qxPictureSettings &settings)
{
    return m_parts->withScene(settings,
                              [&] { return qxSceneLighting::of(*m_parts->scene, settings.view); });
}

osg::NodePtr qxRenderer::nodeAt(const qxPictureSettings &settings, float x, float y)
{
    return m_parts->withScene(
        settings, [&] { return m_parts->nodeAt(settings, x, y); }, qxRenderScene::KnownLight);
}

qxNodeMask qxRenderer::mask(const qxPictureSettings &settings,
                            const std::vector<osg::NodePtr> &nodes)
{
    if (!m_parts->scene || !qxScene::current() || !isPossible(settings))
        return qxNodeMask();
    std::vector<osg::UInt32> ids;
    for (const osg::NodePtr &top : nodes)
        qxWalkNodes(
            top, [&ids](const osg::NodePtr &node) { ids.push_back(node.getFieldContainerId()); });
    std::sort(ids.begin(), ids.end());
    m_parts->scene->build();
    const qxRenderGroup &group = m_parts->scene->shown();
    const qxRenderCamera camera(qxMainView::the().camera, group.bounds(), settings.width,
                                settings.height);
    return qxMaskOf(ids, group, camera, qxRenderClipping(qxClipping::the(), group.bounds()));
}
