#include "Render/qxPictureFilter.h"

#include "Render/qxRenderMath.h"

#include <algorithm>
#include <cmath>

namespace {

const int _reach = 6; ///< in pixels, in each direction
const int _near = 2; ///< in pixels, over which the noise is taken to be the same
const int _bandRows = 16;

const float _tolerance = 1.0f; ///< so many times the variances, differences count as noise
const float _unseen = 4e-6f; ///< variance that nobody sees
const float _colourUnit = 0.1f;
const float _gloss = 0.08f;
const float _normalUnit = 0.3f;

/// About exp(-x) for positive numbers, without its tail.
float fading(float x)
{
    const float rest = std::max(0.0f, 1.0f - std::max(x, 0.0f) * (1.0f / 6.0f));
    const float square = rest * rest;
    return square * square;
}

float square(float x)
{
    return x * x;
}

/// What the light is divided by: mirrors on a surface of any colour show the light's own.
osg::Vec3f divisor(const osg::Vec3f &colour)
{
    return colour + osg::Vec3f(_gloss, _gloss, _gloss);
}

} // namespace

osg::Vec3f qxPictureFilter::withoutColour(const osg::Vec3f &light, const osg::Vec3f &colour)
{
    const osg::Vec3f by = divisor(colour);
    return osg::Vec3f(light[0] / by[0], light[1] / by[1], light[2] / by[2]);
}

osg::Vec3f qxPictureFilter::look(const osg::Vec3f &light)
{
    const auto one = [](float x) { return std::sqrt(std::clamp(x, 0.0f, 4.0f)); };
    return osg::Vec3f(one(light[0]), one(light[1]), one(light[2]));
}

/// Some rows, while they are filtered.
struct qxPictureFilter::Band {
    Band(int width, int firstRow, int rows)
        : first(firstRow), count(rows), stride(std::size_t(width) + 2),
          differences(stride * (std::size_t(rows) + 2)),
          weight(std::size_t(width) * std::size_t(rows))
    {
        light.fill(weight);
    }

    int first;
    int count;
    std::size_t stride;
    /// How different the pixels and their neighbours look; with one pixel more on all sides.
    Plane differences;
    Plane weight;
    std::array<Plane, 3> light;
};

qxPictureFilter::qxPictureFilter(int width, int height) : m_width(width), m_height(height)
{
    m_variance.resize(std::size_t(width) * std::size_t(height));
    m_colour.resize(m_variance.size());
    m_light.fill(m_variance);
    m_look.fill(m_variance);
    m_surface.fill(m_variance);
    m_result.resize(m_variance.size());
}

void qxPictureFilter::set(int x, int y, const Pixel &pixel)
{
    const std::size_t at = place(x, y);
    const osg::Vec3f light = withoutColour(pixel.light, pixel.colour);
    const osg::Vec3f looks = look(light);
    m_colour[at] = divisor(pixel.colour);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        m_light[i][at] = light[i];
        m_look[i][at] = looks[i];
        m_surface[i][at] = std::sqrt(std::clamp(pixel.colour[i], 0.0f, 1.0f)) / _colourUnit;
        m_surface[i + 3][at] = pixel.normal[i] / _normalUnit;
    }
    m_variance[at] = pixel.variance;
}

/// The variance of a few samples is itself noisy: each pixel takes the average around it.
void qxPictureFilter::prepare()
{
    const Plane single = m_variance;
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            float sum = 0.0f;
            float count = 0.0f;
            for (int j = std::max(0, y - _near); j < std::min(m_height, y + _near + 1); ++j) {
                for (int i = std::max(0, x - _near); i < std::min(m_width, x + _near + 1); ++i) {
                    sum += single[place(i, j)];
                    count += 1.0f;
                }
            }
            m_variance[place(x, y)] = sum / count;
        }
    }
}

int qxPictureFilter::bandCount() const
{
    return (m_height + _bandRows - 1) / _bandRows;
}

int qxPictureFilter::firstRow(int band) const
{
    return std::min(band * _bandRows, m_height);
}

void qxPictureFilter::filterBand(int number)
{
    const int first = firstRow(number);
    Band band(m_width, first, firstRow(number + 1) - first);
    for (int up = -_reach; up <= _reach; ++up) {
        for (int across = -_reach; across <= _reach; ++across)
            addNeighbours(across, up, band);
    }
    for (std::size_t i = 0; i < band.weight.size(); ++i) {
        const osg::Vec3f sum(band.light[0][i], band.light[1][i], band.light[2][i]);
        const std::size_t at = place(0, first) + i;
        m_result[at] = qxProduct(sum * (1.0f / band.weight[i]), m_colour[at]);
    }
}

/// Adds to each pixel the one that lies so far away from it, as far as it is alike.
void qxPictureFilter::addNeighbours(int across, int up, Band &band) const
{
    for (int row = -1; row <= band.count; ++row)
        compare(across, up, band.first + row,
                &band.differences[std::size_t(row + 1) * band.stride]);
    for (int y = band.first; y < band.first + band.count; ++y) {
        if (y + up >= 0 && y + up < m_height)
            addRow(across, up, y, band);
    }
}

/// How different the pixels of a row and their neighbours look, in shares of what noise explains.
void qxPictureFilter::compare(int across, int up, int y, float *differences) const
{
    std::fill_n(differences, m_width + 2, 0.0f);
    if (y < 0 || y >= m_height || y + up < 0 || y + up >= m_height)
        return;
    const std::size_t here = place(0, y);
    const std::size_t there =
        std::size_t(std::ptrdiff_t(here) + std::ptrdiff_t(up) * m_width + across);
    const float *const look[] = {m_look[0].data(), m_look[1].data(), m_look[2].data()};
    const float *const variance = m_variance.data();
    const std::size_t last = std::size_t(std::min(m_width, m_width - across));
    for (std::size_t x = std::size_t(std::max(0, -across)); x < last; ++x) {
        const std::size_t p = here + x;
        const std::size_t q = there + x;
        const float sum = square(look[0][p] - look[0][q]) + square(look[1][p] - look[1][q])
            + square(look[2][p] - look[2][q]);
        const float noise = variance[p] + std::min(variance[p], variance[q]);
        differences[x + 1] =
            (sum * (1.0f / 3.0f) - noise) / (_unseen + _tolerance * (variance[p] + variance[q]));
    }
}

void qxPictureFilter::addRow(int across, int up, int y, Band &band) const
{
    const std::size_t here = place(0, y);
    const std::size_t there =
        std::size_t(std::ptrdiff_t(here) + std::ptrdiff_t(up) * m_width + across);
    const std::size_t row = std::size_t(y - band.first);
    const float *const middle = &band.differences[(row + 1) * band.stride];
    const float *const below = middle - band.stride;
    const float *const above = middle + band.stride;
    const std::size_t last = std::size_t(std::min(m_width, m_width - across));
    for (std::size_t x = std::size_t(std::max(0, -across)); x < last; ++x) {
        float around = 0.0f;
        for (std::size_t i = x; i < x + 3; ++i)
            around += below[i] + middle[i] + above[i];
        float surface = 0.0f;
        for (const Plane &plane : m_surface)
            surface += square(plane[here + x] - plane[there + x]);
        const float weight = fading(around * (1.0f / 9.0f)) * fading(surface);
        const std::size_t at = row * std::size_t(m_width) + x;
        band.weight[at] += weight;
        for (std::size_t i = 0; i < 3; ++i)
            band.light[i][at] += weight * m_light[i][there + x];
    }
}
