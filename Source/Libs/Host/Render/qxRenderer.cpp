#include "Render/qxRenderer.h"

#include "Cameras/qxMainView.h"
#include "Render/qxContour.h"
#include "Render/qxPictureColour.h"
#include "Render/qxRenderPicking.h"
#include "Render/qxRenderScene.h"
#include "Render/qxTiles.h"
#include "Render/qxTracer.h"
#include "Scene/qxScene.h"
#include "qxLog.h"

#include <OpenSG/OSGFieldContainerFactory.h>

#include <limits>
#include <new>

namespace {

const int _largest = 16384; ///< width and height of a picture
/// Samples of the best quality: as many as a pixel needs, looked at after so many at a time.
const int _bestSamples = 64;
const int _sampleStep = 16;
const float _visibleError = 3.0f / 255.0f; ///< in the colours of the picture
const int _tile = 16; ///< width and height in pixels

/// From the left above the eye, for scenes that have no light at all.
qxRenderLight headLight(const qxRenderCamera &camera)
{
    qxRenderLight light;
    light.direction = qxUnit(camera.right() * 0.45f - camera.up() * 0.6f - camera.back());
    light.light = osg::Vec3f(1.2f, 1.2f, 1.2f);
    light.shadow = false;
    return light;
}

osg::Vec3f notNegative(const osg::Vec3f &light)
{
    return osg::Vec3f(std::max(light[0], 0.0f), std::max(light[1], 0.0f), std::max(light[2], 0.0f));
}

int samplesOf(const qxPictureSettings &settings)
{
    if (settings.quality == qxPictureSettings::Quick)
        return 1;
    return settings.quality < 0 ? _bestSamples : settings.quality;
}

/// The light of an environment in a few words: what comes from below and from above on average, as
/// the middle of the scene gets it.
qxSky skyOf(const qxTracer &environment, const qxBox &scene)
{
    const int count = 256;
    osg::Vec3f sums[2];
    for (int i = 0; i < count; ++i) {
        qxSampler sampler(0, std::uint32_t(i));
        const osg::Vec2f place = sampler.nextPair();
        const float height = 2.0f * place[0] - 1.0f;
        const float radius = std::sqrt(1.0f - height * height);
        const float angle = 6.2831853f * place[1];
        qxRay ray;
        ray.origin = scene.isEmpty() ? osg::Vec3f() : scene.centre();
        ray.direction = osg::Vec3f(radius * std::cos(angle), height, radius * std::sin(angle));
        sums[height > 0.0f] += environment.seen(ray, sampler).light * (2.0f / float(count));
    }
    // The halves' averages are those at half the height.
    const osg::Vec3f difference = (sums[1] - sums[0]) * 0.5f;
    return qxSky(notNegative(sums[0] - difference), notNegative(sums[1] + difference));
}

/// The average of a pixel's samples.
class Average {
public:
    void add(const osg::Vec3f &light)
    {
        m_sum += light;
        const float level = std::sqrt(std::clamp(qxPeak(light), 0.0f, 1.0f));
        m_level += level;
        m_square += level * level;
        m_count += 1.0f;
    }
    osg::Vec3f light() const { return m_sum * (1.0f / m_count); }
    /// How far off it probably is, in shares of white as a picture shows them.
    float error() const
    {
        const float mean = m_level / m_count;
        return std::sqrt(std::max(0.0f, m_square / m_count - mean * mean) / m_count);
    }

private:
    osg::Vec3f m_sum;
    float m_level = 0.0f; ///< sums of the brightest channel as it looks, and of its square
    float m_square = 0.0f;
    float m_count = 0.0f;
};

/// Everything that stays the same for all pixels of a picture.
class Painter {
public:
    Painter(const qxRenderScene &scene, const qxPictureSettings &settings);

    int tileCount() const { return m_across * ((m_settings.height + _tile - 1) / _tile); }
    void paintTile(int tile, qxPicture &picture) const;

private:
    qxTracer::Scene tracerScene(const qxRenderGroup &group, qxTracer::Manner manner,
                                const qxRenderClipping &clipping) const;
    void paintPixel(int x, int y, qxPicture &picture) const;
    osg::Vec3f sample(int x, int y, int number) const;
    osg::Vec3f background(const qxRay &ray, float y, qxSampler &sampler) const;

    const qxPictureSettings &m_settings;
    const int m_across; ///< tiles in a row
    const int m_samples;
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
};

Painter::Painter(const qxRenderScene &scene, const qxPictureSettings &settings)
    : m_settings(settings), m_across((settings.width + _tile - 1) / _tile),
      m_samples(samplesOf(settings)), m_rayTracing(settings.quality != qxPictureSettings::Quick),
      m_camera(qxMainView::the().camera, scene.shown().bounds(), settings.width, settings.height),
      m_clipping(qxClipping::the(), scene.shown().bounds()), m_noClipping(qxClipping(), qxBox()),
      m_contour(scene.shown(), m_clipping, m_camera, settings.width, settings.height),
      m_contourLight(qxLightOf(m_clipping.settings().contourColor)),
      m_top(qxLightOf(settings.backgroundTop)), m_bottom(qxLightOf(settings.backgroundBottom)),
      m_lights(scene.lights()),
      // With lights of its own a scene gets less light from the room around it.
      m_sky(qxSky::room(m_lights.isEmpty() ? 0.9f : 0.4f))
{
    m_lights.expose(scene.shown().bounds());
    if (m_lights.isEmpty())
        m_lights.on.push_back(headLight(m_camera));
    if (!scene.environment().instances().empty()) {
        m_environment = std::make_unique<qxTracer>(
            tracerScene(scene.environment(), qxTracer::Flat, m_noClipping));
        m_sky = skyOf(*m_environment, scene.shown().bounds());
    }
    const qxTracer::Manner manner = m_rayTracing ? qxTracer::RayTracing : qxTracer::HardLight;
    m_tracer = std::make_unique<qxTracer>(tracerScene(scene.shown(), manner, m_clipping));
    for (const auto &overlay : scene.overlays())
        m_overlays.emplace_back(tracerScene(*overlay.second, qxTracer::Flat, m_noClipping));
}

qxTracer::Scene Painter::tracerScene(const qxRenderGroup &group, qxTracer::Manner manner,
                                     const qxRenderClipping &clipping) const
{
    return {group, m_lights, clipping, m_camera, m_sky, manner, m_environment.get()};
}

void Painter::paintTile(int tile, qxPicture &picture) const
{
    const int left = tile % m_across * _tile;
    const int low = tile / m_across * _tile;
    for (int y = low; y < std::min(low + _tile, m_settings.height); ++y) {
        for (int x = left; x < std::min(left + _tile, m_settings.width); ++x)
            paintPixel(x, y, picture);
    }
}

void Painter::paintPixel(int x, int y, qxPicture &picture) const
{
    Average average;
    for (int i = 0; i < m_samples; ++i) {
        average.add(sample(x, y, i));
        const bool look = m_settings.quality < 0 && (i + 1) % _sampleStep == 0;
        if (look && average.error() < _visibleError)
            break;
    }
    const osg::Vec3f colour = qxShownColour(average.light());
    const std::size_t place = std::size_t(y) * std::size_t(m_settings.width) + std::size_t(x);
    std::uint8_t *const bytes = &picture.rgba[place * 4];
    for (osg::UInt32 i = 0; i < 3; ++i)
        bytes[i] = std::uint8_t(std::lround(colour[i] * 255.0f));
    bytes[3] = 255;
}

/// The light of one of a pixel's samples, as the picture shows it.
osg::Vec3f Painter::sample(int x, int y, int number) const
{
    qxSampler sampler(std::uint32_t(y) * std::uint32_t(_largest) + std::uint32_t(x),
                      std::uint32_t(number));
    const osg::Vec2f shift = m_samples > 1 ? sampler.nextPair() : osg::Vec2f(0.5f, 0.5f);
    const qxRay ray = m_camera.ray(float(x) + shift[0], float(y) + shift[1]);
    const qxTracer::Light seen = m_tracer->seen(ray, sampler);
    osg::Vec3f light = seen.light + background(ray, float(y) + shift[1], sampler) * seen.through;
    if (m_rayTracing)
        light = qxToneMapped(light);
    const qxContour::Pixel line = m_contour.at(x, y);
    if (line.cover > 0.0f && line.distance <= seen.distance * 1.002f)
        light = qxMixed(light, m_contourLight, line.cover);
    for (const qxTracer &overlay : m_overlays) {
        const qxTracer::Light front = overlay.seen(ray, sampler);
        light = front.light + light * front.through;
    }
    return light;
}

osg::Vec3f Painter::background(const qxRay &ray, float y, qxSampler &sampler) const
{
    const osg::Vec3f plain = qxMixed(m_bottom, m_top, y / float(m_settings.height));
    if (!m_environment)
        return plain;
    qxRay endless = ray;
    endless.far = std::numeric_limits<float>::infinity();
    const qxTracer::Light seen = m_environment->seen(endless, sampler);
    return seen.light + plain * seen.through;
}

bool isPossible(const qxPictureSettings &settings)
{
    const auto fits = [](int size) { return size > 0 && size <= _largest; };
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
    Parts() : device(rtcNewDevice(nullptr))
    {
        if (device)
            rtcSetDeviceErrorFunction(device.get(), &reportError, &failed);
    }

    /// What `work` gives with the scene as it is now; an empty result, with the reason in the log,
    /// when there can be none.
    template <class Work>
    auto withScene(const qxPictureSettings &settings, const Work &work) -> decltype(work());
    qxPicture paint(const qxPictureSettings &settings, const Progress &progress) const;
    osg::NodePtr nodeAt(const qxPictureSettings &settings, float x, float y) const;

    qxEmbreeDevice device;
    bool failed = false;
    std::unique_ptr<qxRenderScene> scene;
};

template <class Work>
auto qxRenderer::Parts::withScene(const qxPictureSettings &settings, const Work &work)
    -> decltype(work())
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
        scene->update();
        auto result = failed ? decltype(work())() : work();
        if (!failed)
            return result;
    } catch (const std::bad_alloc &) {
        qxLog::error("Rendering failed: not enough memory");
    }
    scene.reset();
    return {};
}

/// Empty when it is cancelled.
qxPicture qxRenderer::Parts::paint(const qxPictureSettings &settings,
                                   const Progress &progress) const
{
    const Painter painter(*scene, settings);
    qxPicture picture;
    picture.width = settings.width;
    picture.height = settings.height;
    picture.rgba.resize(std::size_t(settings.width) * std::size_t(settings.height) * 4);
    const int total = painter.tileCount();
    const auto tell = [&](int done) { return !progress || progress(done, total); };
    const auto paintTile = [&](int tile) { painter.paintTile(tile, picture); };
    const bool finished = tell(0) && qxForAllTiles(total, settings.threads, paintTile, tell);
    return finished ? picture : qxPicture();
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
    const osg::UInt32 id = qxNodeAlong(ray, group);
    if (id == 0)
        return osg::NullFC;
    return osg::NodePtr::dcast(osg::FieldContainerFactory::the()->getContainer(id));
}

qxRenderer::qxRenderer() : m_parts(std::make_unique<Parts>()) {}

qxRenderer::~qxRenderer() = default;

qxPicture qxRenderer::render(const qxPictureSettings &settings, const Progress &progress)
{
    return m_parts->withScene(settings, [&] { return m_parts->paint(settings, progress); });
}

osg::NodePtr qxRenderer::nodeAt(const qxPictureSettings &settings, float x, float y)
{
    return m_parts->withScene(settings, [&] { return m_parts->nodeAt(settings, x, y); });
}
