#include "Render/qxPainter.h"

#include "Cameras/qxMainView.h"
#include "Render/qxPictureColour.h"
#include "Render/qxRenderPicking.h"
#include "Render/qxTiles.h"

#include <limits>

namespace {

const int _largestTile = 16; ///< width and height in pixels
/// Samples of the best quality: as many as a pixel needs, looked at after so many at a time.
const int _bestSamples = 32;
const int _sampleStep = 8;
const int _fewestToFilter = 4; ///< samples that tell noise from what is there
const float _tooMuchNoise = 12.0f / 255.0f; ///< for the filter, in the colours of the picture

int samplesOf(const qxPictureSettings &settings)
{
    if (settings.quality == qxPictureSettings::Quick)
        return 1;
    return settings.quality < 0 ? _bestSamples : settings.quality;
}

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

/// Pixels of many samples come in small tiles: one that is begun is finished before a picture is
/// cancelled.
int tileOf(int samples)
{
    const float share = std::sqrt(std::min(1.0f, float(_bestSamples) / float(samples)));
    return std::max(1, int(float(_largestTile) * share));
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
        sums[height > 0.0f] += environment.trace(ray, sampler).radiance * (2.0f / float(count));
    }
    // The halves' averages are those at half the height.
    const osg::Vec3f difference = (sums[1] - sums[0]) * 0.5f;
    return qxSky(notNegative(sums[0] - difference), notNegative(sums[1] + difference));
}

} // namespace

/// What one ray finds.
struct qxPainter::Sample {
    osg::Vec3f light; ///< as the picture shows it
    osg::Vec3f colour; ///< own one of what is seen
    osg::Vec3f normal;
    int sides; ///< of surfaces
    float distance; ///< as that of qxTracer::RayResult, of the nearest overlay where one is
    bool isInFront; ///< there is one
};

/// What the samples of a pixel have in common.
class qxPainter::Average {
public:
    void add(const Sample &sample)
    {
        m_light += sample.light;
        m_colour += sample.colour;
        m_normal += sample.normal;
        const osg::Vec3f look = root(sample.light);
        m_look += look;
        m_squares += look.squareLength();
        m_count += 1.0f;
        m_sides |= sample.sides;
    }
    int sides() const { return m_sides; }
    osg::Vec3f light() const { return m_light * (1.0f / m_count); }
    qxPictureFilter::Pixel pixel() const
    {
        return {light(), variance(), m_colour * (1.0f / m_count), m_normal * (1.0f / m_count)};
    }
    int count() const { return int(m_count); }
    /// How far off it probably is, squared, in shares of white as a picture shows them; mean of the
    /// channels.
    float variance() const
    {
        const float ofSums = m_squares - m_look.squareLength() / m_count;
        return std::max(0.0f, ofSums) / (3.0f * m_count * (m_count - 1.0f));
    }

private:
    static osg::Vec3f root(const osg::Vec3f &light)
    {
        const auto one = [](float x) { return std::sqrt(std::clamp(x, 0.0f, 1.0f)); };
        return osg::Vec3f(one(light[0]), one(light[1]), one(light[2]));
    }

    osg::Vec3f m_light;
    osg::Vec3f m_colour;
    osg::Vec3f m_normal;
    osg::Vec3f m_look; ///< sum of the light's roots, which differences look like
    float m_squares = 0.0f; ///< of these roots, all channels
    float m_count = 0.0f;
    int m_sides = qxTracer::Nothing;
};

qxPainter::qxPainter(const qxRenderScene &scene, const qxPictureSettings &settings)
    : m_shown(scene.shown()), m_settings(settings), m_samples(samplesOf(settings)),
      m_tile(tileOf(m_samples)), m_across((settings.width + m_tile - 1) / m_tile),
      m_rayTracing(settings.quality != qxPictureSettings::Quick),
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
    const qxTracer::Mode mode = m_rayTracing ? qxTracer::RayTracing : qxTracer::HardLight;
    m_tracer = std::make_unique<qxTracer>(tracerScene(scene.shown(), mode, m_clipping));
    for (const auto &overlay : scene.overlays())
        m_overlays.emplace_back(tracerScene(*overlay.second, qxTracer::Flat, m_noClipping));
    if (m_samples >= _fewestToFilter)
        m_filter = std::make_unique<qxPictureFilter>(settings.width, settings.height);
    m_picture.width = settings.width;
    m_picture.height = settings.height;
    m_picture.rgba.resize(std::size_t(settings.width) * std::size_t(settings.height) * 4);
}

qxTracer::Scene qxPainter::tracerScene(const qxRenderGroup &group, qxTracer::Mode mode,
                                       const qxRenderClipping &clipping) const
{
    // Several rays share a pixel.
    const float rayWidth = 1.0f / std::sqrt(float(std::min(m_samples, _sampleStep)));
    return {group, m_lights, clipping, m_camera, m_sky, mode, rayWidth, m_environment.get()};
}

int qxPainter::tileCount() const
{
    return m_across * ((m_settings.height + m_tile - 1) / m_tile);
}

qxPicture qxPainter::paint(const qxPicture::Progress &progress)
{
    const int tiles = tileCount();
    const int bands = m_filter ? m_filter->bandCount() : 0;
    const auto tell = [&](int done) { return !progress || progress(done, tiles + bands); };
    const auto paintTile = [this](int tile) { this->paintTile(tile); };
    if (!tell(0) || !qxForAllTiles(tiles, m_settings.threads, paintTile, tell))
        return qxPicture();
    m_picture.content = content();
    if (!m_filter)
        return std::move(m_picture);
    m_filter->prepare();
    const auto filterBand = [this](int band) { this->filterBand(band); };
    const auto tellBands = [&](int done) { return tell(tiles + done); };
    const bool finished = qxForAllTiles(bands, m_settings.threads, filterBand, tellBands);
    return finished ? std::move(m_picture) : qxPicture();
}

void qxPainter::paintTile(int tile)
{
    const int left = tile % m_across * m_tile;
    const int low = tile / m_across * m_tile;
    const int width = std::min(m_tile, m_settings.width - left);
    const int height = std::min(m_tile, m_settings.height - low);
    std::vector<Average> pixels(std::size_t(width) * std::size_t(height));
    const int step = m_settings.quality < 0 ? _sampleStep : m_samples;
    std::vector<bool> isNoisy(pixels.size(), true);
    for (int done = 0; done < m_samples; done += step) {
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            if (isNoisy[i])
                addSamples(left + int(i) % width, low + int(i) / width, step, pixels[i]);
        }
        if (done + step < m_samples)
            isNoisy = noisyOnes(pixels, width);
    }
    int sides = qxTracer::Nothing;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        finish(left + int(i) % width, low + int(i) / width, pixels[i]);
        sides |= pixels[i].sides();
    }
    m_sides |= sides;
}

/// Once all tiles are painted. Why nothing is seen is looked for only when nothing is.
qxPicture::Content qxPainter::content() const
{
    if (m_clipping.hidesScene() || (m_sides & qxTracer::Front))
        return qxPicture::Shown;
    if (m_shown.bounds().isEmpty())
        return qxPicture::Hidden;
    if (m_sides & qxTracer::Back)
        return qxPicture::FromBehind;
    const int rays = 64; // in each direction
    for (int i = 0; i < rays * rays; ++i) {
        qxRay ray = m_camera.ray((float(i % rays) + 0.5f) / float(rays) * float(m_settings.width),
                                 (float(i / rays) + 0.5f) / float(rays) * float(m_settings.height));
        ray.near = 0.0f;
        ray.far = std::numeric_limits<float>::infinity();
        if (qxNodeAlong(ray, m_shown) != 0)
            return qxPicture::CutAway;
    }
    osg::Vec2f place;
    float distance;
    const bool isAhead = m_camera.project(m_shown.bounds().centre(), place, distance);
    const bool isSmall = isAhead && m_shown.bounds().radius() < m_camera.pixelSize(distance);
    const bool isInside = isAhead && place[0] >= 0.0f && place[0] <= float(m_settings.width)
        && place[1] >= 0.0f && place[1] <= float(m_settings.height);
    return isSmall && isInside ? qxPicture::TooSmall : qxPicture::LookedPast;
}

/// Which of a tile's pixels need more samples. Their surroundings decide: those that are dark by
/// chance look as if they had no noise.
std::vector<bool> qxPainter::noisyOnes(const std::vector<Average> &pixels, int width)
{
    const int height = int(pixels.size()) / width;
    const int reach = 2;
    std::vector<bool> result;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            float sum = 0.0f;
            float count = 0.0f;
            for (int j = std::max(0, y - reach); j < std::min(height, y + reach + 1); ++j) {
                for (int i = std::max(0, x - reach); i < std::min(width, x + reach + 1); ++i) {
                    sum += pixels[std::size_t(j * width + i)].variance();
                    count += 1.0f;
                }
            }
            result.push_back(sum > count * _tooMuchNoise * _tooMuchNoise);
        }
    }
    return result;
}

void qxPainter::addSamples(int x, int y, int count, Average &pixel) const
{
    const int first = pixel.count();
    for (int i = first; i < first + count; ++i)
        pixel.add(sample(x, y, i));
}

void qxPainter::finish(int x, int y, const Average &pixel)
{
    if (m_filter)
        m_filter->set(x, y, pixel.pixel());
    else
        show(x, y, pixel.light());
}

void qxPainter::filterBand(int band)
{
    m_filter->filterBand(band);
    for (int y = m_filter->firstRow(band); y < m_filter->firstRow(band + 1); ++y) {
        for (int x = 0; x < m_settings.width; ++x)
            show(x, y, m_filter->light(x, y));
    }
}

void qxPainter::show(int x, int y, const osg::Vec3f &light)
{
    const osg::Vec3f colour = qxShownColour(light);
    const std::size_t place = std::size_t(y) * std::size_t(m_settings.width) + std::size_t(x);
    std::uint8_t *const bytes = &m_picture.rgba[place * 4];
    for (osg::UInt32 i = 0; i < 3; ++i)
        bytes[i] = std::uint8_t(std::lround(colour[i] * 255.0f));
    bytes[3] = 255;
}

/// One of a pixel's samples.
qxPainter::Sample qxPainter::sample(int x, int y, int number) const
{
    qxSampler sampler(std::uint32_t(y) * std::uint32_t(qxPictureSettings::largest)
                          + std::uint32_t(x),
                      std::uint32_t(number));
    const osg::Vec2f shift = m_samples > 1 ? sampler.nextPair() : osg::Vec2f(0.5f, 0.5f);
    const qxRay ray = m_camera.ray(float(x) + shift[0], float(y) + shift[1]);
    const qxTracer::RayResult seen = m_tracer->trace(ray, sampler);
    const osg::Vec3f behind = seen.transmittance > 0.0f
        ? background(ray, float(y) + shift[1], sampler) * seen.transmittance
        : osg::Vec3f();
    Sample result = {seen.radiance + behind,
                     seen.colour + behind,
                     seen.normal,
                     seen.sides,
                     seen.distance,
                     false};
    if (m_rayTracing)
        result.light = qxToneMapped(result.light);
    const auto cover = [&result](const osg::Vec3f &light, float through) {
        result.light = light + result.light * through;
        result.colour = light + result.colour * through;
    };
    const qxContour::Pixel line = m_contour.at(x, y);
    if (line.cover > 0.0f && line.distance <= seen.distance * 1.002f)
        cover(m_contourLight * line.cover, 1.0f - line.cover);
    for (const qxTracer &overlay : m_overlays) {
        const qxTracer::RayResult front = overlay.trace(ray, sampler);
        cover(front.radiance, front.transmittance);
        result.sides |= front.sides & qxTracer::Front;
        result.isInFront = result.isInFront || std::isfinite(front.distance);
        if (std::isfinite(front.distance))
            result.distance = front.distance;
    }
    return result;
}

qxPainter::Spot qxPainter::spot(int x, int y)
{
    const Sample seen = sample(x, y, 0);
    if ((m_sides | seen.sides) != m_sides)
        m_sides |= seen.sides;
    return {qxShownColour(seen.light), seen.distance, seen.isInFront};
}

osg::Vec3f qxPainter::plainBackground(int y) const
{
    return qxShownColour(qxMixed(m_bottom, m_top, (float(y) + 0.5f) / float(m_settings.height)));
}

osg::Vec3f qxPainter::background(const qxRay &ray, float y, qxSampler &sampler) const
{
    const osg::Vec3f plain = qxMixed(m_bottom, m_top, y / float(m_settings.height));
    if (!m_environment)
        return plain;
    qxRay endless = ray;
    endless.far = std::numeric_limits<float>::infinity();
    const qxTracer::RayResult seen = m_environment->trace(endless, sampler);
    return seen.radiance + plain * seen.transmittance;
}
