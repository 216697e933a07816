#include "Render/qxShadowGround.h"

#include "Render/qxRenderPicking.h"

namespace {

const int _places = 32; ///< at which a floor is looked for
const float _deepest = 0.85f; ///< some light gets everywhere
const int _fineGrid = 112; ///< places along the longer side
const int _coarseGrid = 40;
const int _fineDirections = 96;
const int _coarseDirections = 16;

float luminance(const osg::Vec3f &light)
{
    return light.dot(osg::Vec3f(0.2126f, 0.7152f, 0.0722f));
}

/// How far around the scene shadows fall.
float marginOf(const qxBox &bounds)
{
    const osg::Vec3f size = bounds.upper - bounds.lower;
    const float broad = std::max(size[0], size[2]);
    return std::min(size[1] + 0.2f * broad, 1.5f * broad);
}

/// Weights of four neighbours (cubic B-spline): smoother than straight lines between them.
void setWeights(float share, float (&weights)[4])
{
    const float rest = 1.0f - share;
    weights[0] = rest * rest * rest / 6.0f;
    weights[1] = (4.0f - 6.0f * share * share + 3.0f * share * share * share) / 6.0f;
    weights[2] = (4.0f - 6.0f * rest * rest + 3.0f * rest * rest * rest) / 6.0f;
    weights[3] = share * share * share / 6.0f;
}

/// 0 at the edges of a range, 1 inside.
float window(float x)
{
    const float share = std::clamp(std::min(x, 1.0f - x) * 6.0f, 0.0f, 1.0f);
    return share * share * (3.0f - 2.0f * share);
}

} // namespace

bool qxShadowGround::isFloor(const qxRenderGroup &shown)
{
    const qxBox &bounds = shown.bounds();
    if (bounds.isEmpty())
        return false;
    const osg::Vec3f half = (bounds.upper - bounds.lower) * 0.5f;
    const float above = std::max(half.length(), 1e-6f);
    int found = 0;
    for (int i = 0; i < _places; ++i) {
        const float angle = 2.0f * qxPi * (float(i) + 0.5f) / float(_places);
        qxRay ray;
        ray.origin = bounds.centre()
            + osg::Vec3f(half[0] * 0.93f * std::cos(angle), half[1] + above,
                         half[2] * 0.93f * std::sin(angle));
        ray.direction = osg::Vec3f(0, -1, 0);
        const float height = ray.origin[1] - qxDistanceAlong(ray, shown) - bounds.lower[1];
        found += height <= 0.2f * half[1] && height > -above;
    }
    return found * 4 >= _places * 3;
}

bool qxShadowGround::isWanted(qxViewSettings::Ground setting, const qxRenderGroup &shown)
{
    if (setting == qxViewSettings::NoGround || shown.bounds().isEmpty())
        return false;
    return setting == qxViewSettings::AlwaysGround || !isFloor(shown);
}

qxShadowGround::qxShadowGround(const Scene &scene, bool isFine) : m_scene(scene)
{
    const osg::Vec3f size = scene.bounds.upper - scene.bounds.lower;
    const float margin = marginOf(scene.bounds);
    const float longest = std::max(std::max(size[0], size[2]) + 2.0f * margin, 1e-6f);
    m_left = scene.bounds.lower[0] - margin;
    m_back = scene.bounds.lower[2] - margin;
    m_step = longest / float(isFine ? _fineGrid : _coarseGrid);
    m_columns = int(std::ceil((size[0] + 2.0f * margin) / m_step)) + 1;
    m_rows = int(std::ceil((size[2] + 2.0f * margin) / m_step)) + 1;
    m_hidden.resize(std::size_t(m_columns) * std::size_t(m_rows));
    chooseDirections(isFine);
}

/// The same for all places: differences between them are shadows, and no noise.
void qxShadowGround::chooseDirections(bool isFine)
{
    const int count = isFine ? _fineDirections : _coarseDirections;
    float sum = 0.0f;
    for (int i = 0; i < count; ++i) {
        const osg::Vec2f random = qxSampler(1, std::uint32_t(i)).nextPair();
        Direction one;
        if (isFine) {
            const qxEnvironmentLight::Sample sample = m_scene.sky.sample(random);
            one.direction = sample.direction;
            one.weight =
                luminance(sample.light) * sample.direction[1] / std::max(sample.density, 1e-6f);
        } else {
            const float radius = std::sqrt(random[0]);
            const float angle = 2.0f * qxPi * random[1];
            one.direction = osg::Vec3f(radius * std::cos(angle), std::sqrt(1.0f - random[0]),
                                       radius * std::sin(angle));
            one.weight = 1.0f;
        }
        if (!(one.weight > 0.0f) || one.direction[1] < 0.02f)
            continue;
        m_directions.push_back(one);
        sum += one.weight;
    }
    const float all =
        isFine ? sum / float(count) : luminance(m_scene.sky.scattered(osg::Vec3f(0, 1, 0))) * qxPi;
    for (Direction &one : m_directions)
        one.weight *= all / sum;
}

void qxShadowGround::fillRow(int row)
{
    for (int column = 0; column < m_columns; ++column) {
        const osg::Vec3f place(m_left + float(column) * m_step, m_scene.bounds.lower[1],
                               m_back + float(row) * m_step);
        m_hidden[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)] = hiddenAt(place);
    }
}

/// The share of all light on the ground that the scene keeps away from a place.
float qxShadowGround::hiddenAt(const osg::Vec3f &place) const
{
    qxSurfacePoint point;
    point.position = place;
    point.normal = point.flatNormal = osg::Vec3f(0, 1, 0);
    point.distance = m_step;
    float hidden = 0.0f;
    float all = 0.0f;
    for (const Direction &one : m_directions) {
        const osg::Vec3f left = m_scene.tracer.transmittance(
            point, one.direction, std::numeric_limits<float>::infinity());
        hidden += one.weight * (1.0f - luminance(left));
        all += one.weight;
    }
    for (const qxRenderLight &light : m_scene.lights.on) {
        const qxRenderLight::Arrival arrival = light.arrivalAt(place, point.normal);
        const float amount = luminance(arrival.light) * std::max(arrival.toLight[1], 0.0f);
        all += amount;
        if (!(amount > 0.0f) || !light.shadow)
            continue;
        const osg::Vec3f left =
            m_scene.tracer.transmittance(point, arrival.toLight, arrival.distance);
        hidden += amount * (1.0f - luminance(left));
    }
    return all > 0.0f ? hidden / all : 0.0f;
}

float qxShadowGround::distanceAlong(const qxRay &ray) const
{
    const float height = ray.origin[1] - m_scene.bounds.lower[1];
    const float distance = height / -ray.direction[1];
    const bool isMet =
        height > 0.0f && ray.direction[1] < 0.0f && distance >= ray.near && distance <= ray.far;
    return isMet ? distance : std::numeric_limits<float>::infinity();
}

float qxShadowGround::through(const qxRay &ray) const
{
    const float distance = distanceAlong(ray);
    if (!std::isfinite(distance))
        return 1.0f;
    const osg::Vec3f place = ray.at(distance);
    const float x = (place[0] - m_left) / m_step;
    const float y = (place[2] - m_back) / m_step;
    const float edge = window(x / float(m_columns - 1)) * window(y / float(m_rows - 1));
    if (!(edge > 0.0f))
        return 1.0f;
    const int column = int(x);
    const int row = int(y);
    float across[4];
    float down[4];
    setWeights(x - float(column), across);
    setWeights(y - float(row), down);
    float hidden = 0.0f;
    for (int j = 0; j < 4; ++j) {
        const int inRow = std::clamp(row + j - 1, 0, m_rows - 1);
        for (int i = 0; i < 4; ++i) {
            const int inColumn = std::clamp(column + i - 1, 0, m_columns - 1);
            hidden += across[i] * down[j]
                * m_hidden[std::size_t(inRow) * std::size_t(m_columns) + std::size_t(inColumn)];
        }
    }
    return 1.0f - _deepest * edge * std::clamp(hidden, 0.0f, 1.0f);
}
