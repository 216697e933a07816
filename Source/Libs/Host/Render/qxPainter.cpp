#include "Render/qxPainter.h"

#include "Cameras/qxMainView.h"
#include "Render/qxPictureColour.h"
#include "Render/qxRenderPicking.h"
#include "Render/qxTiles.h"

#include <limits>

namespace {

const int _largestTile = 16; ///< width and height in pixels
/// Samples of the best quality: as many as a pixel needs, looked at after so many at a time.
const int _bestSamples = 16;
const int _sampleStep = 4;
const int _fewestToFilter = 4; ///< samples that tell noise from what is there
const float _tooMuchNoise = 14.0f / 255.0f; ///< in the colours of the picture
const float _easyShare = 0.3f; ///< of the noise where the filter does well: inside of surfaces
const float _brightestSample = 4.0f;

int samplesOf(const qxPictureSettings &settings)
{
    if (settings.quality == qxPictureSettings::Quick)
        return 1;
    return settings.quality < 0 ? _bestSamples : settings.quality;
}

/// Pixels of many samples come in small tiles: one that is begun is finished before a picture is
/// cancelled.
int tileOf(int samples)
{
    const float share = std::sqrt(std::min(1.0f, float(_bestSamples) / float(samples)));
    return std::max(1, int(float(_largestTile) * share));
}

} // namespace

/// What one ray finds.
struct qxPainter::Sample : Layers {
    osg::Vec3f gathered() const { return scattered.light + sharp.light; }

    qxTracer::Gathered scattered;
    qxTracer::Gathered sharp;
    int sides = qxTracer::Nothing; ///< of surfaces
    float distance = 0; ///< as that of qxTracer::RayResult, of the nearest overlay where one is
    bool isInFront = false; ///< there is one
};

/// What the samples of a pixel have in common of one kind of gathered light.
class qxPainter::Mean {
public:
    void add(const qxTracer::Gathered &sample)
    {
        const osg::Vec3f light = limited(sample.light);
        m_light += light;
        m_colour += sample.colour;
        const qxPictureFilter::Surface surface =
            qxPictureFilter::surfaceOf(sample.colour, sample.normal);
        for (std::size_t i = 0; i < surface.size(); ++i) {
            m_surface[i] += surface[i];
            m_surfaceSquares += surface[i] * surface[i];
        }
        const osg::Vec3f colour = qxPictureFilter::divisor(sample.colour);
        m_lightSquares += qxProduct(light, light);
        m_products += qxProduct(light, colour);
        m_colourSquares += qxProduct(colour, colour);
        m_count += 1.0f;
    }
    qxPictureFilter::Pixel pixel() const
    {
        const float share = 1.0f / m_count;
        qxPictureFilter::Pixel result = {light(), variance(), m_colour * share, m_surface,
                                         m_surfaceSquares * share};
        for (float &number : result.surface) {
            number *= share;
            result.mixture = std::max(0.0f, result.mixture - number * number);
        }
        return result;
    }
    osg::Vec3f light() const { return m_light * (1.0f / m_count); }
    /// A few samples that are brighter would be spots and jagged edges.
    static osg::Vec3f limited(const osg::Vec3f &light)
    {
        const float peak = qxPeak(light);
        return peak > _brightestSample ? light * (_brightestSample / peak) : light;
    }

private:
    /// How far off its light without the colour probably is, squared; mean of the channels. It is
    /// a ratio of means: Cochran, "Sampling Techniques", 1977, section 2.11.
    float variance() const
    {
        const osg::Vec3f colour = qxPictureFilter::divisor(m_colour * (1.0f / m_count));
        float sum = 0.0f;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            const float ratio = m_light[i] / (m_count * colour[i]);
            const float squares =
                m_lightSquares[i] + ratio * (ratio * m_colourSquares[i] - 2.0f * m_products[i]);
            sum += std::max(0.0f, squares) / (colour[i] * colour[i]);
        }
        return sum / (3.0f * m_count * std::max(m_count - 1.0f, 1.0f));
    }

    osg::Vec3f m_light;
    osg::Vec3f m_colour;
    qxPictureFilter::Surface m_surface = {}; ///< sum, and sum of all the squares
    float m_surfaceSquares = 0.0f;
    osg::Vec3f m_lightSquares; ///< sums of squares, and of products with the colours
    osg::Vec3f m_products;
    osg::Vec3f m_colourSquares;
    float m_count = 0.0f;
};

/// What the samples of a pixel have in common.
class qxPainter::Average {
public:
    void add(const Sample &sample)
    {
        m_layers.light += Mean::limited(sample.light);
        m_layers.plain += sample.plain;
        m_layers.lit += sample.lit;
        m_layers.open += sample.open;
        m_scattered.add(sample.scattered);
        m_sharp.add(sample.sharp);
        const osg::Vec3f look = root(sample.light + sample.gathered() + sample.plain);
        m_look += look;
        m_lookSquares += look.squareLength();
        m_count += 1.0f;
        m_sides |= sample.sides;
    }
    int sides() const { return m_sides; }
    int count() const { return int(m_count); }
    const Mean &scattered() const { return m_scattered; }
    const Mean &sharp() const { return m_sharp; }
    Layers layers() const
    {
        const float share = 1.0f / m_count;
        return {m_layers.light * share, m_layers.plain * share, m_layers.lit * share,
                m_layers.open * share};
    }
    /// How far off the pixel probably is, squared, in shares of white as a picture shows it.
    float shownVariance() const
    {
        const float ofSums = m_lookSquares - m_look.squareLength() / m_count;
        const float variance = std::max(0.0f, ofSums) / (3.0f * m_count * (m_count - 1.0f));
        const float mixture = std::min(m_scattered.pixel().mixture, 1.0f);
        return variance * qxMixed(_easyShare, 1.0f, mixture);
    }

private:
    static osg::Vec3f root(const osg::Vec3f &light)
    {
        const auto one = [](float x) { return std::sqrt(std::clamp(x, 0.0f, 1.0f)); };
        return osg::Vec3f(one(light[0]), one(light[1]), one(light[2]));
    }

    Layers m_layers;
    Mean m_scattered;
    Mean m_sharp;
    osg::Vec3f m_look; ///< sum of the roots of all light, which differences look like
    float m_lookSquares = 0.0f; ///< of these, all channels
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
      m_background(scene, settings.view), m_lights(scene.lights()),
      m_exposure(std::exp2(settings.view.exposure))
{
    m_lights.expose(scene.shown().bounds());
    if (m_background.hasGeometry())
        m_environment =
            std::make_unique<qxTracer>(tracerScene(scene.environment(), false, m_noClipping));
    const qxTracer::Scene lit = tracerScene(scene.shown(), true, m_clipping);
    if (m_rayTracing)
        m_tracer = std::make_unique<qxPathTracer>(lit);
    else
        m_tracer = std::make_unique<qxTracer>(lit);
    if (qxShadowGround::isWanted(settings.view.ground, m_shown) && !m_clipping.hidesScene())
        m_ground = std::make_unique<qxShadowGround>(
            qxShadowGround::Scene{*m_tracer, m_shown.bounds(), m_lights, m_background.sky()},
            m_rayTracing);
    for (const auto &overlay : scene.overlays())
        m_overlays.emplace_back(tracerScene(*overlay.second, false, m_noClipping));
    if (m_samples >= _fewestToFilter)
        m_filters.resize(2, qxPictureFilter(settings.width, settings.height));
    m_picture.width = settings.width;
    m_picture.height = settings.height;
    const std::size_t pixels = std::size_t(settings.width) * std::size_t(settings.height);
    if (!m_filters.empty())
        m_layers.resize(pixels);
    m_picture.rgba.resize(pixels * 4);
}

qxTracer::Scene qxPainter::tracerScene(const qxRenderGroup &group, bool isLit,
                                       const qxRenderClipping &clipping) const
{
    // Several rays share a pixel.
    const float rayWidth = 1.0f / std::sqrt(float(std::min(m_samples, _sampleStep)));
    return {group, m_lights, clipping,           m_camera, m_background.sky(),
            isLit, rayWidth, m_environment.get()};
}

int qxPainter::tileCount() const
{
    return m_across * ((m_settings.height + m_tile - 1) / m_tile);
}

qxPicture qxPainter::paint(const qxPicture::Progress &progress)
{
    const int tiles = tileCount();
    const int bands = m_filters.empty() ? 0 : 2 * m_filters.front().bandCount();
    const int rows = m_ground ? m_ground->rowCount() : 0;
    const int total = rows + tiles + bands * qxPictureFilter::passes;
    int done = 0;
    const auto tell = [&](int more) { return !progress || progress(done + more, total); };
    const auto forAll = [&](int count, const std::function<void(int)> &work) {
        const bool isFinished = qxForAllTiles(count, m_settings.threads, work, tell);
        done += count;
        return isFinished;
    };
    if (!tell(0) || !forAll(rows, [this](int row) { m_ground->fillRow(row); })
        || !forAll(tiles, [this](int tile) { paintTile(tile); }))
        return qxPicture();
    m_picture.content = content();
    for (qxPictureFilter &filter : m_filters) {
        for (int pass = 0; pass < qxPictureFilter::passes; ++pass) {
            filter.prepare();
            if (!forAll(filter.bandCount(), [&](int band) { filter.filterBand(pass, band); }))
                return qxPicture();
        }
    }
    if (!m_filters.empty())
        showFiltered();
    return std::move(m_picture);
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
    std::vector<float> variances;
    for (const Average &pixel : pixels)
        variances.push_back(pixel.shownVariance());
    std::vector<bool> result;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            float sum = 0.0f;
            float count = 0.0f;
            for (int j = std::max(0, y - reach); j < std::min(height, y + reach + 1); ++j) {
                for (int i = std::max(0, x - reach); i < std::min(width, x + reach + 1); ++i) {
                    sum += variances[std::size_t(j * width + i)];
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
    if (m_filters.empty())
        return show(x, y, pixel.layers(), pixel.scattered().light() + pixel.sharp().light());
    m_filters[0].set(x, y, pixel.scattered().pixel());
    m_filters[1].set(x, y, pixel.sharp().pixel());
    m_layers[place(x, y)] = pixel.layers();
}

void qxPainter::showFiltered()
{
    for (int y = 0; y < m_settings.height; ++y) {
        for (int x = 0; x < m_settings.width; ++x)
            show(x, y, m_layers[place(x, y)], m_filters[0].light(x, y) + m_filters[1].light(x, y));
    }
}

osg::Vec4f qxPainter::shownColour(const Layers &layers, const osg::Vec3f &gathered) const
{
    osg::Vec3f shown = layers.plain;
    if (layers.lit > 0.0f) {
        const osg::Vec3f light = layers.light + gathered;
        shown += qxToneMapped(light * (m_exposure / layers.lit)) * layers.lit;
    }
    const float alpha = std::clamp(1.0f - layers.open, 0.0f, 1.0f);
    const osg::Vec3f colour = qxShownColour(alpha > 0.0f ? shown * (1.0f / alpha) : shown);
    return osg::Vec4f(colour[0], colour[1], colour[2], alpha);
}

void qxPainter::show(int x, int y, const Layers &layers, const osg::Vec3f &gathered)
{
    const osg::Vec4f colour = shownColour(layers, gathered);
    std::uint8_t *const bytes = &m_picture.rgba[place(x, y) * 4];
    for (osg::UInt32 i = 0; i < 4; ++i)
        bytes[i] = std::uint8_t(std::lround(colour[i] * 255.0f));
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
    Sample result;
    result.light = seen.radiance;
    result.scattered = seen.scattered;
    result.sharp = seen.sharp;
    result.lit = seen.lit;
    result.plain = seen.plain;
    const float behind = seen.transmittance;
    const float ground = m_ground && behind > 0.0f ? m_ground->through(ray) : 1.0f;
    if (behind > 0.0f) {
        Layers layers;
        m_background.add(ray, (float(y) + shift[1]) / float(m_settings.height), behind * ground,
                         m_environment.get(), layers);
        result.light += qxProduct(layers.light, seen.tint);
        result.plain += qxProduct(layers.plain, seen.tint);
        result.lit += layers.lit;
        result.open += layers.open;
    }
    result.sides = seen.sides;
    const bool isGround = ground < 1.0f && !std::isfinite(seen.distance);
    result.distance = isGround ? m_ground->distanceAlong(ray) : seen.distance;
    const auto cover = [&result](const osg::Vec3f &light, float through) {
        result.plain = light + result.plain * through;
        result.light *= through;
        result.scattered.light *= through;
        result.scattered.colour *= through;
        result.sharp.light *= through;
        result.lit *= through;
        result.open *= through;
    };
    const qxContour::Pixel line = m_contour.at(x, y);
    if (line.cover > 0.0f && line.distance <= seen.distance * 1.002f)
        cover(m_contourLight * line.cover, 1.0f - line.cover);
    for (const qxTracer &overlay : m_overlays) {
        const qxTracer::RayResult front = overlay.trace(ray, sampler);
        cover(front.plain, front.transmittance);
        result.sides |= front.sides & qxTracer::Front;
        result.isInFront = result.isInFront || std::isfinite(front.distance);
        if (std::isfinite(front.distance))
            result.distance = front.distance;
    }
    return result;
}

void qxPainter::prepareSpots(std::vector<float> &shadows)
{
    if (!m_ground)
        return;
    if (!shadows.empty())
        return m_ground->setShadows(shadows);
    const auto fillRow = [this](int row) { m_ground->fillRow(row); };
    qxForAllTiles(m_ground->rowCount(), m_settings.threads, fillRow, [](int) { return true; });
    shadows = m_ground->shadows();
}

qxPainter::Spot qxPainter::spot(int x, int y)
{
    const Sample seen = sample(x, y, 0);
    if ((m_sides | seen.sides) != m_sides)
        m_sides |= seen.sides;
    return {shownColour(seen, seen.gathered()), seen.distance, seen.isInFront};
}

osg::Vec4f qxPainter::plainBackground(int y) const
{
    Layers layers;
    m_background.add(qxRay(), (float(y) + 0.5f) / float(m_settings.height), 1.0f, nullptr, layers);
    return shownColour(layers, osg::Vec3f());
}
