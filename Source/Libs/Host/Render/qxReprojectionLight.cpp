#include "Render/qxReprojection.h"

#include <cmath>

namespace {

const int _moderateAge = 8; ///< from which on points are compared with those around
/// What a change counts around a pixel; all of it would spread noise.
const float _followed = 0.6f;

} // namespace

/// The average of points of the surface that the first one is of.
class qxReprojection::Mixture {
public:
    void add(const Point &point, float weight)
    {
        if (point.kind == Point::None)
            return;
        if (m_weight == 0.0f)
            m_depth = point.depth;
        else if (!isSame(m_depth, point.depth))
            return;
        for (int i = 0; i < 4; ++i)
            m_sums[i] += weight * float(point.rgba[i]);
        m_weight += weight;
    }
    /// None, but with their light: nothing was seen there.
    Point point() const
    {
        Point result;
        for (int i = 0; i < 4 && m_weight > 0.0f; ++i)
            result.rgba[i] = std::uint16_t(m_sums[i] / m_weight + 0.5f);
        return result;
    }

private:
    float m_depth = 0;
    float m_sums[4] = {0, 0, 0, 0};
    float m_weight = 0;
};

/// The four blocks around a pixel, while it goes along a row.
class qxReprojection::Corners {
public:
    Corners(const qxReprojection &all, int y) : m_all(all), m_width(all.m_blockWidth)
    {
        const int half = m_width / 2;
        m_up = (y + half) / m_width - 1;
        m_above = (y + half) % m_width;
        m_right = half;
        look();
    }
    /// To the next pixel.
    void step()
    {
        if (++m_right < m_width)
            return;
        m_right = 0;
        ++m_across;
        look();
    }
    /// Light changes with the view. What it did where pixels around were drawn it does here.
    void brighten(Point &point) const
    {
        float sums[4] = {0, 0, 0, 0};
        int weights = 0;
        for (int corner = 0; corner < 4; ++corner) {
            const Block &block = *m_blocks[corner];
            if (!block.point || !isSame(m_depths[corner], point.depth))
                continue;
            const int weight = (corner & 1 ? m_right : m_width - m_right)
                * (corner & 2 ? m_above : m_width - m_above);
            for (int i = 0; i < 4; ++i)
                sums[i] += float(weight) * block.change[i];
            weights += weight;
        }
        const float share = weights > 0 ? _followed / float(weights) : 0.0f;
        for (int i = 0; i < 4; ++i) {
            const int light = int(point.rgba[i]) + int(sums[i] * share);
            point.rgba[i] = std::uint16_t(std::clamp(light, 0, 255 * _byte));
        }
    }

private:
    void look()
    {
        for (int corner = 0; corner < 4; ++corner) {
            const Block &block = m_all.blockAt(m_across + (corner & 1), m_up + (corner >> 1));
            m_blocks[corner] = &block;
            m_depths[corner] = block.point ? block.point->depth : 0.0f;
        }
    }

    const qxReprojection &m_all;
    const int m_width; ///< of a block
    const Block *m_blocks[4];
    float m_depths[4];
    int m_across = -1; ///< the block on the left
    int m_up; ///< and the lower ones
    int m_right; ///< pixels from the middle of these
    int m_above;
};

/// The nearest one for places outside.
const qxReprojection::Block &qxReprojection::blockAt(int across, int up) const
{
    const std::size_t row = std::size_t(std::clamp(up, 0, m_rows - 1));
    return m_blocks[row * std::size_t(m_across) + std::size_t(std::clamp(across, 0, m_across - 1))];
}

/// Makes the points of the picture and its bytes.
void qxReprojection::finish(const qxPainter &painter, int y, std::uint8_t *rgba)
{
    Point behind;
    behind.setLight(painter.plainBackground(y));
    const bool isPlain = painter.hasPlainBackground();
    std::size_t place = placeOf(0, y);
    Corners corners(*this, y);
    for (int x = 0; x < m_width; ++x, ++place, rgba += 4, corners.step()) {
        Point &point = m_points[place];
        point = m_next[place];
        if (point.kind == Point::None) {
            point = interpolated(x, y);
        } else if (point.kind == Point::Far && isPlain && point.age > 0) {
            std::copy_n(behind.rgba, 4, point.rgba);
        } else if (point.age > 0) {
            corners.brighten(point);
            if (point.age >= _moderateAge)
                moderate(x, y, point);
        }
        showPixel(x, y, rgba);
    }
}

/// Edges of surfaces that were moved are rough; the picture shows them a little softer.
void qxReprojection::showPixel(int x, int y, std::uint8_t *rgba) const
{
    const std::size_t place = placeOf(x, y);
    const Point &point = m_points[place];
    int light[4] = {point.rgba[0], point.rgba[1], point.rgba[2], point.rgba[3]};
    const bool isInside = x > 0 && y > 0 && x + 1 < m_width && y + 1 < m_height;
    if (isInside && m_drawn < m_width * m_height) {
        const std::size_t row = std::size_t(m_width);
        const Point *const around[] = {&m_next[place - 1], &m_next[place + 1], &m_next[place - row],
                                       &m_next[place + row]};
        const auto isBeyond = [&](const Point *other) {
            return other->kind != Point::None && !isSame(other->depth, point.depth);
        };
        if (point.kind != Point::None && std::any_of(around, around + 4, isBeyond))
            for (int i = 0; i < 4; ++i) {
                int sum = 4 * light[i];
                for (const Point *other : around)
                    sum += other->kind == Point::None ? light[i] : other->rgba[i];
                light[i] = sum / 8;
            }
    }
    for (int i = 0; i < 4; ++i)
        rgba[i] = std::uint8_t((light[i] + _byte / 2) / _byte);
}

/// An old point is not lighter or darker than all younger ones around it: it has missed a change.
void qxReprojection::moderate(int x, int y, Point &point) const
{
    if (x == 0 || y == 0 || x + 1 == m_width || y + 1 == m_height)
        return;
    int least[4] = {255 * _byte, 255 * _byte, 255 * _byte, 255 * _byte};
    int most[4] = {0, 0, 0, 0};
    int count = 0;
    for (int j = y - 1; j <= y + 1; ++j) {
        for (int i = x - 1; i <= x + 1; ++i) {
            const Point &other = m_next[placeOf(i, j)];
            if (other.kind == Point::None || other.age >= point.age
                || !isSame(other.depth, point.depth))
                continue;
            ++count;
            for (int c = 0; c < 4; ++c) {
                least[c] = std::min<int>(least[c], other.rgba[c]);
                most[c] = std::max<int>(most[c], other.rgba[c]);
            }
        }
    }
    for (int c = 0; c < 4 && count > 1; ++c)
        point.rgba[c] = std::uint16_t(std::clamp<int>(point.rgba[c], least[c], most[c]));
}

/// The average of points beside it that are of one surface, that of the first one; false without.
bool qxReprojection::mixBeside(std::size_t place, Point &point) const
{
    const int row = m_width;
    const int steps[] = {-1, 1, -row, row, -row - 1, row + 1, row - 1, 1 - row};
    float depth = 0.0f;
    int sums[4] = {0, 0, 0, 0};
    int count = 0;
    for (const int step : steps) {
        const Point &other = m_next[std::size_t(std::ptrdiff_t(place) + step)];
        if (other.kind == Point::None || (count > 0 && !isSame(depth, other.depth)))
            continue;
        depth = count > 0 ? depth : other.depth;
        for (int i = 0; i < 4; ++i)
            sums[i] += other.rgba[i];
        ++count;
    }
    const float share = count > 0 ? 1.0f / float(count) : 0.0f;
    for (int i = 0; i < 4; ++i)
        point.rgba[i] = std::uint16_t(float(sums[i]) * share + 0.5f);
    return count > 0;
}

/// Between the points beside it; where there are none, between those that were drawn in the blocks
/// around it. The nearest one says to which surface it belongs.
qxReprojection::Point qxReprojection::interpolated(int x, int y) const
{
    Point result;
    const bool isInside = x > 0 && y > 0 && x + 1 < m_width && y + 1 < m_height;
    if (isInside && mixBeside(placeOf(x, y), result))
        return result;
    Mixture mixture;
    const Block *blocks[9];
    float squares[9];
    int nearest = 0;
    for (int i = 0; i < 9; ++i) {
        blocks[i] = &blockAt(x / m_blockWidth + i % 3 - 1, y / m_blockWidth + i / 3 - 1);
        const float right = float(blocks[i]->x - x);
        const float above = float(blocks[i]->y - y);
        squares[i] = right * right + above * above;
        if (squares[i] < squares[nearest])
            nearest = i;
    }
    mixture.add(*blocks[nearest]->point, 1.0f / (squares[nearest] * squares[nearest]));
    for (int i = 0; i < 9; ++i) {
        if (i != nearest)
            mixture.add(*blocks[i]->point, 1.0f / (squares[i] * squares[i]));
    }
    return mixture.point();
}
