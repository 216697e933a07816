#include "Render/qxPictureFilter.h"

#include "Render/qxRenderMath.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

const int _bandRows = 16;
float env(const char *n, float d)
{
    const char *v = std::getenv(n);
    return v ? float(std::atof(v)) : d;
}
const float _tolerance =
    env("F_TOL", 6.0f); ///< so many times the variance, differences count as noise
const float _unseen = env("F_UNSEEN", 4e-6f); ///< variance that nobody sees
const float _colourUnit = env("F_COL", 0.2f);
const float _normalUnit = env("F_NORM", 0.3f);
const int _near = int(env("F_NEAR", 1));
const int _near0 = int(env("F_NEAR0", 2));
const int _passes = int(env("F_PASS", 5));
/// Of the light that surfaces of any colour reflect as it is.
const float _gloss = env("F_GLOSS", 0.08f);
const float _least = env("F_LEAST", 1e-3f);
const float _brightestLook = 2.0f;

/// About exp(-x) for positive numbers, without its tail.
float fading(float x)
{
    const float rest = std::max(0.0f, 1.0f - x * (1.0f / 6.0f));
    const float square = rest * rest;
    return square * square;
}

float square(float x)
{
    return x * x;
}

/// Its root, which differences look like.
osg::Vec3f look(const osg::Vec3f &light)
{
    const auto one = [](float x) { return std::min(std::sqrt(std::max(x, 0.0f)), _brightestLook); };
    return osg::Vec3f(one(light[0]), one(light[1]), one(light[2]));
}

} // namespace

/// A row of pixels, while it is filtered.
struct qxPictureFilter::Row {
    int y;
    Plane weight;
    Plane variance;
    std::array<Plane, 3> light;
};

qxPictureFilter::qxPictureFilter(int width, int height) : m_width(width), m_height(height)
{
    m_variance.resize(std::size_t(width) * std::size_t(height));
    m_colour.fill(m_variance);
    m_light.fill(m_variance);
    m_look.fill(m_variance);
    m_surface.fill(m_variance);
    m_nextLight.fill(m_variance);
    m_nextVariance = m_variance;
}

osg::Vec3f qxPictureFilter::withoutColour(const osg::Vec3f &light, const osg::Vec3f &colour)
{
    return osg::Vec3f(light[0] / (colour[0] + _gloss), light[1] / (colour[1] + _gloss),
                      light[2] / (colour[2] + _gloss));
}

void qxPictureFilter::set(int x, int y, const Pixel &pixel)
{
    const std::size_t at = place(x, y);
    const osg::Vec3f light = withoutColour(pixel.light, pixel.colour);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        m_colour[i][at] = pixel.colour[i] + _gloss;
        m_nextLight[i][at] = light[i];
        m_surface[i][at] = std::sqrt(std::clamp(pixel.colour[i], 0.0f, 1.0f)) / _colourUnit;
        m_surface[i + 3][at] = pixel.normal[i] / _normalUnit;
    }
    m_nextVariance[at] = pixel.variance;
}

/// The averages over squares around the pixels.
qxPictureFilter::Plane qxPictureFilter::blurred(const Plane &plane, int reach) const
{
    const auto along = [reach](const Plane &from, int rows, std::size_t nextRow, int count,
                               std::size_t step) {
        Plane result(from.size());
        for (int row = 0; row < rows; ++row) {
            const std::size_t first = std::size_t(row) * nextRow;
            for (int i = 0; i < count; ++i) {
                const int low = std::max(0, i - reach);
                const int high = std::min(count - 1, i + reach);
                float sum = 0.0f;
                for (int k = low; k <= high; ++k)
                    sum += from[first + std::size_t(k) * step];
                result[first + std::size_t(i) * step] = sum / float(high - low + 1);
            }
        }
        return result;
    };
    const std::size_t width = std::size_t(m_width);
    return along(along(plane, m_height, width, m_width, 1), m_width, 1, m_height, width);
}

void qxPictureFilter::prepare(int pass)
{
    m_light.swap(m_nextLight);
    m_variance.swap(m_nextVariance);
    for (std::size_t at = 0; at < m_variance.size(); ++at) {
        const osg::Vec3f light(m_light[0][at], m_light[1][at], m_light[2][at]);
        const osg::Vec3f looks = look(light);
        for (osg::UInt32 i = 0; i < 3; ++i)
            m_look[i][at] = looks[i];
        m_nextVariance[at] = (light[0] + light[1] + light[2]) * (4.0f / 3.0f);
    }
    // The variance of a few samples is itself noisy.
    const int reach = pass == 0 ? _near0 : _near;
    m_noise = blurred(m_variance, reach);
    const Plane mean = blurred(m_nextVariance, reach);
    for (std::size_t at = 0; at < m_variance.size(); ++at)
        m_noise[at] = std::max(m_noise[at] / (mean[at] + _least),
                               m_variance[at] / (m_nextVariance[at] + _least));
}

int qxPictureFilter::bandCount() const
{
    return (m_height + _bandRows - 1) / _bandRows;
}

int qxPictureFilter::firstRow(int band) const
{
    return std::min(band * _bandRows, m_height);
}

void qxPictureFilter::filterBand(int pass, int band)
{
    const float shares[] = {1 / 16.0f, 1 / 4.0f, 3 / 8.0f, 1 / 4.0f, 1 / 16.0f};
    const std::size_t width = std::size_t(m_width);
    const int step = 1 << pass;
    if (pass >= _passes) {
        for (std::size_t at = place(0, firstRow(band)); at < place(0, firstRow(band + 1)); ++at) {
            for (int i = 0; i < 3; ++i)
                m_nextLight[i][at] = m_light[i][at];
            m_nextVariance[at] = m_variance[at];
        }
        return;
    }
    for (int y = firstRow(band); y < firstRow(band + 1); ++y) {
        Row row = {y, Plane(width), Plane(width), {Plane(width), Plane(width), Plane(width)}};
        for (int up = 0; up < 5; ++up) {
            for (int across = 0; across < 5; ++across)
                addNeighbours((across - 2) * step, (up - 2) * step, shares[across] * shares[up],
                              row);
        }
        for (std::size_t x = 0; x < width; ++x) {
            const std::size_t at = place(0, y) + x;
            const float factor = 1.0f / row.weight[x];
            for (std::size_t i = 0; i < 3; ++i)
                m_nextLight[i][at] = row.light[i][x] * factor;
            m_nextVariance[at] = row.variance[x] * factor * factor;
        }
    }
}

/// Adds to each pixel the one that lies so far away from it, as far as it is alike.
void qxPictureFilter::addNeighbours(int across, int up, float share, Row &row) const
{
    if (row.y + up < 0 || row.y + up >= m_height)
        return;
    const std::size_t here = place(0, row.y);
    const std::size_t there =
        std::size_t(std::ptrdiff_t(here) + std::ptrdiff_t(up) * m_width + across);
    const std::size_t last = std::size_t(std::max(0, std::min(m_width, m_width - across)));
    for (std::size_t x = std::size_t(std::max(0, -across)); x < last; ++x) {
        const std::size_t p = here + x;
        const std::size_t q = there + x;
        const float difference = square(m_look[0][p] - m_look[0][q])
            + square(m_look[1][p] - m_look[1][q]) + square(m_look[2][p] - m_look[2][q]);
        float surface = 0.0f;
        for (const Plane &plane : m_surface)
            surface += square(plane[p] - plane[q]);
        const float noise = _unseen + _tolerance * m_noise[p];
        const float weight = share * fading(difference / (3.0f * noise)) * fading(surface);
        row.weight[x] += weight;
        row.variance[x] += weight * weight * m_variance[q];
        for (std::size_t i = 0; i < 3; ++i)
            row.light[i][x] += weight * m_light[i][q];
    }
}

osg::Vec3f qxPictureFilter::light(int x, int y) const
{
    const std::size_t at = place(x, y);
    return osg::Vec3f(m_nextLight[0][at] * m_colour[0][at], m_nextLight[1][at] * m_colour[1][at],
                      m_nextLight[2][at] * m_colour[2][at]);
}
