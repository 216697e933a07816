#include "Render/qxPictureFilter.h"

#include "Render/qxRenderMath.h"

#include <algorithm>
#include <cmath>

namespace {

const int _bandRows = 16;
const int _near = 1; ///< in pixels, over which the noise is taken to be the same
const float _tolerance = 9.0f; ///< so many times the variance, differences count as noise
const float _unseen = 2e-5f; ///< variance that nobody sees
const float _darkest = 1e-3f; ///< light; of what is darker, differences are seen less
const float _colourUnit = 0.1f;
const float _normalUnit = 0.09f;
const float _kinship = 0.2f; ///< of a pixel in which surfaces meet to them
const float _gloss = 0.12f; ///< about what surfaces reflect beside their colour
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
    m_alike = m_variance;
    m_nextLight.fill(m_variance);
    m_nextVariance = m_variance;
}

osg::Vec3f qxPictureFilter::divisor(const osg::Vec3f &colour)
{
    return colour + osg::Vec3f(_gloss, _gloss, _gloss);
}

qxPictureFilter::Surface qxPictureFilter::surfaceOf(const osg::Vec3f &colour,
                                                    const osg::Vec3f &normal)
{
    Surface result;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        result[i] = std::sqrt(std::clamp(colour[i], 0.0f, 1.0f)) / _colourUnit;
        result[i + 3] = normal[i] / _normalUnit;
    }
    return result;
}

void qxPictureFilter::set(int x, int y, const Pixel &pixel)
{
    const std::size_t at = place(x, y);
    const osg::Vec3f colour = divisor(pixel.colour);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        m_colour[i][at] = colour[i];
        m_nextLight[i][at] = pixel.light[i] / colour[i];
    }
    for (std::size_t i = 0; i < m_surface.size(); ++i)
        m_surface[i][at] = pixel.surface[i];
    // Where surfaces meet in a pixel, it is akin to both.
    m_alike[at] = 1.0f / (1.0f + _kinship * pixel.mixture);
    m_nextVariance[at] = pixel.variance;
}

/// The averages over squares around the pixels.
qxPictureFilter::Plane qxPictureFilter::blurred(const Plane &plane) const
{
    const auto along = [](const Plane &from, int rows, std::size_t nextRow, int count,
                          std::size_t step) {
        Plane result(from.size());
        for (int row = 0; row < rows; ++row) {
            const std::size_t first = std::size_t(row) * nextRow;
            for (int i = 0; i < count; ++i) {
                const int low = std::max(0, i - _near);
                const int high = std::min(count - 1, i + _near);
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

void qxPictureFilter::prepare()
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
    // The variance of a few samples is itself noisy. That of a root follows from that of the light.
    m_noise = blurred(m_variance);
    const Plane light = blurred(m_nextVariance);
    for (std::size_t at = 0; at < m_variance.size(); ++at)
        m_noise[at] = std::max(m_noise[at] / (light[at] + _darkest),
                               m_variance[at] / (m_nextVariance[at] + _darkest));
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
        const float weight =
            share * fading(difference / (3.0f * noise)) * fading(surface * m_alike[p]);
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
