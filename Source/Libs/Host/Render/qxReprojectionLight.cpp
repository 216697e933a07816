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
            m_first = point;
        else if (!isSame(m_first.depth, point.depth))
            return;
        for (int i = 0; i < 3; ++i)
            m_sums[i] += weight * float(point.rgb[i]);
        m_weight += weight;
    }
    bool isEmpty() const { return m_weight == 0.0f; }
    /// None, but with their light: nothing was seen there.
    Point point() const
    {
        Point result;
        for (int i = 0; i < 3 && !isEmpty(); ++i)
            result.rgb[i] = std::uint16_t(m_sums[i] / m_weight + 0.5f);
        return result;
    }

private:
    Point m_first;
    float m_sums[3] = {0, 0, 0};
    float m_weight = 0;
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
    for (int x = 0; x < m_width; ++x, ++place, rgba += 4) {
        Point &point = m_points[place];
        point = m_next[place];
        if (point.kind == Point::None) {
            point = interpolated(x, y);
        } else if (point.kind == Point::Far && isPlain && point.age > 0) {
            std::copy_n(behind.rgb, 3, point.rgb);
        } else if (point.age > 0) {
            brighten(x, y, point);
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
    int light[3] = {point.rgb[0], point.rgb[1], point.rgb[2]};
    const bool isInside = x > 0 && y > 0 && x + 1 < m_width && y + 1 < m_height;
    if (isInside && m_drawn < m_width * m_height) {
        const std::size_t row = std::size_t(m_width);
        const Point *const around[] = {&m_next[place - 1], &m_next[place + 1], &m_next[place - row],
                                       &m_next[place + row]};
        const auto isBeyond = [&](const Point *other) {
            return other->kind != Point::None && !isSame(other->depth, point.depth);
        };
        if (point.kind != Point::None && std::any_of(around, around + 4, isBeyond))
            for (int i = 0; i < 3; ++i) {
                int sum = 4 * light[i];
                for (const Point *other : around)
                    sum += other->kind == Point::None ? light[i] : other->rgb[i];
                light[i] = sum / 8;
            }
    }
    for (int i = 0; i < 3; ++i)
        rgba[i] = std::uint8_t((light[i] + _byte / 2) / _byte);
    rgba[3] = 255;
}

/// Light changes with the view. What it did where pixels around were drawn it does here.
void qxReprojection::brighten(int x, int y, Point &point) const
{
    const int half = m_blockWidth / 2;
    const int across = (x + half) / m_blockWidth - 1;
    const int up = (y + half) / m_blockWidth - 1;
    const int right = x + half - (across + 1) * m_blockWidth;
    const int above = y + half - (up + 1) * m_blockWidth;
    int sums[3] = {0, 0, 0};
    int weights = 0;
    for (int corner = 0; corner < 4; ++corner) {
        const bool isRight = corner & 1;
        const bool isHigh = corner & 2;
        const Block &block = blockAt(across + isRight, up + isHigh);
        if (!block.point || !isSame(block.point->depth, point.depth))
            continue;
        const int weight =
            (isRight ? right : m_blockWidth - right) * (isHigh ? above : m_blockWidth - above);
        for (int i = 0; i < 3; ++i)
            sums[i] += weight * block.change[i];
        weights += weight;
    }
    const float share = weights > 0 ? _followed / float(weights) : 0.0f;
    for (int i = 0; i < 3; ++i) {
        const int light = int(point.rgb[i]) + int(float(sums[i]) * share);
        point.rgb[i] = std::uint16_t(std::clamp(light, 0, 255 * _byte));
    }
}

/// An old point is not lighter or darker than all younger ones around it: it has missed a change.
void qxReprojection::moderate(int x, int y, Point &point) const
{
    if (x == 0 || y == 0 || x + 1 == m_width || y + 1 == m_height)
        return;
    int least[3] = {255 * _byte, 255 * _byte, 255 * _byte};
    int most[3] = {0, 0, 0};
    int count = 0;
    for (int j = y - 1; j <= y + 1; ++j) {
        for (int i = x - 1; i <= x + 1; ++i) {
            const Point &other = m_next[placeOf(i, j)];
            if (other.kind == Point::None || other.age >= point.age
                || !isSame(other.depth, point.depth))
                continue;
            ++count;
            for (int c = 0; c < 3; ++c) {
                least[c] = std::min<int>(least[c], other.rgb[c]);
                most[c] = std::max<int>(most[c], other.rgb[c]);
            }
        }
    }
    for (int c = 0; c < 3 && count > 1; ++c)
        point.rgb[c] = std::uint16_t(std::clamp<int>(point.rgb[c], least[c], most[c]));
}

/// Between the points beside it; where there are none, between those that were drawn in the blocks
/// around it. The nearest one says to which surface it belongs.
qxReprojection::Point qxReprojection::interpolated(int x, int y) const
{
    static const int beside[][2] = {{-1, 0},  {1, 0}, {0, -1}, {0, 1},
                                    {-1, -1}, {1, 1}, {-1, 1}, {1, -1}};
    Mixture mixture;
    const bool isInside = x > 0 && y > 0 && x + 1 < m_width && y + 1 < m_height;
    for (const int(&step)[2] : beside) {
        if (isInside)
            mixture.add(m_next[placeOf(x + step[0], y + step[1])], 1.0f);
    }
    if (!mixture.isEmpty())
        return mixture.point();
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
