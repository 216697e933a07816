#include "qxOutline.h"

#include "Pictures/qxScenePicture.h"

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

const float lineWidth = 2.0f; ///< these two in units of the layout
const float borderWidth = 1.2f;
const QColor lineColour(255, 170, 20);
const QColor borderColour(20, 14, 0);
const float borderAlpha = 0.65f;
const float behindAlpha = 0.4f; ///< the share that is left where something stands in front
const float steps = 16.0f; ///< of distances, for a pixel
const std::uint8_t farAway = 255;

/// How far each pixel is from the rims, as far as the line reaches.
class Distances {
public:
    Distances(const qxNodeMask &mask, float reach)
        : m_reach(int(std::ceil(reach))), m_width(mask.width + 2 * m_reach),
          m_height(mask.height + 2 * m_reach)
    {
        const std::size_t size = std::size_t(m_width) * std::size_t(m_height);
        m_seen.assign(size, farAway);
        m_behind.assign(size, farAway);
        for (int y = -m_reach; y <= m_reach; ++y) {
            for (int x = -m_reach; x <= m_reach; ++x) {
                const float distance = std::hypot(float(x), float(y));
                if (distance <= reach)
                    m_spots.push_back({y * m_width + x, std::uint8_t(distance * steps)});
            }
        }
        for (const qxNodeMask::Rim &rim : mask.rim)
            stamp(rim.isSeen ? m_seen : m_behind, rim);
    }

    int reach() const { return m_reach; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    std::uint8_t seen(std::size_t place) const { return m_seen[place]; }
    std::uint8_t behind(std::size_t place) const { return m_behind[place]; }

private:
    struct Spot {
        int place;
        std::uint8_t distance;
    };

    void stamp(std::vector<std::uint8_t> &distances, const qxNodeMask::Rim &rim) const
    {
        std::uint8_t *const middle = &distances[std::size_t(rim.y + m_reach) * std::size_t(m_width)
                                                + std::size_t(rim.x + m_reach)];
        for (const Spot &spot : m_spots)
            middle[spot.place] = std::min(middle[spot.place], spot.distance);
    }

    int m_reach;
    int m_width;
    int m_height;
    std::vector<Spot> m_spots; ///< around a rim
    std::vector<std::uint8_t> m_seen;
    std::vector<std::uint8_t> m_behind;
};

/// The colours of the line by distance from the rim, within and outside of the nodes.
class Colours {
public:
    explicit Colours(float scale)
    {
        for (int distance = 0; distance < farAway; ++distance) {
            for (const bool isBehind : {false, true}) {
                const float pixels = float(distance) / steps;
                m_outside[isBehind][distance] = outside(pixels, scale, isBehind ? behindAlpha : 1);
                m_inside[isBehind][distance] = inside(pixels, scale, isBehind ? behindAlpha : 1);
            }
        }
    }

    QRgb at(std::uint8_t seen, std::uint8_t behind, bool isInside) const
    {
        const auto &table = isInside ? m_inside : m_outside;
        const QRgb ofSeen = table[0][seen];
        return qAlpha(ofSeen) != 0 ? ofSeen : table[1][behind];
    }

private:
    static float within(float pixels, float end)
    {
        return std::clamp(end + 0.5f - pixels, 0.0f, 1.0f);
    }
    static QRgb mixed(float line, float alpha)
    {
        const auto part = [line](int one, int other) {
            return int(float(one) * line + float(other) * (1 - line) + 0.5f);
        };
        return qPremultiply(qRgba(part(lineColour.red(), borderColour.red()),
                                  part(lineColour.green(), borderColour.green()),
                                  part(lineColour.blue(), borderColour.blue()),
                                  int(alpha * 255.0f + 0.5f)));
    }
    static QRgb outside(float pixels, float scale, float strength)
    {
        const float line = within(pixels, lineWidth * scale);
        const float border = within(pixels, (lineWidth + borderWidth) * scale) * borderAlpha;
        return mixed(line, std::max(line, border) * strength);
    }
    /// A border alone, so that the line hides nothing of the nodes.
    static QRgb inside(float pixels, float scale, float strength)
    {
        return mixed(0, within(pixels, (borderWidth - 1) * scale) * borderAlpha * strength);
    }

    QRgb m_outside[2][farAway + 1] = {};
    QRgb m_inside[2][farAway + 1] = {};
};

} // namespace

void qxOutline::follow(const QSize &pixels, qreal scale)
{
    m_image = QImage();
    if (m_nodes.empty())
        return;
    QElapsedTimer timer;
    timer.start();
    qxPictureSettings settings;
    settings.width = std::max(1, pixels.width());
    settings.height = std::max(1, pixels.height());
    m_pixels = QSize(settings.width, settings.height);
    const qxNodeMask mask = qxScenePicture::mask(settings, m_nodes);
    if (!mask.rim.empty())
        draw(mask, settings.height, float(scale));
    m_time = double(timer.nsecsElapsed()) * 1e-6;
}

void qxOutline::draw(const qxNodeMask &mask, int height, float scale)
{
    const Distances distances(mask, (lineWidth + borderWidth) * scale + 0.5f);
    const Colours colours(scale);
    const int reach = distances.reach();
    m_place = QPoint(mask.left - reach, height - mask.bottom - mask.height - reach);
    m_image = QImage(distances.width(), distances.height(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    for (int y = 0; y < distances.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(m_image.scanLine(distances.height() - 1 - y));
        const std::size_t start = std::size_t(y) * std::size_t(distances.width());
        for (int x = 0; x < distances.width(); ++x) {
            const std::uint8_t seen = distances.seen(start + std::size_t(x));
            const std::uint8_t behind = distances.behind(start + std::size_t(x));
            if (seen == farAway && behind == farAway)
                continue;
            const int inX = x - reach;
            const int inY = y - reach;
            const bool isInside = inX >= 0 && inY >= 0 && inX < mask.width && inY < mask.height
                && mask.covers(inX, inY);
            line[x] = colours.at(seen, behind, isInside);
        }
    }
}

void qxOutline::paint(QPainter &painter, const QSize &size) const
{
    if (m_image.isNull())
        return;
    painter.save();
    painter.scale(double(size.width()) / m_pixels.width(),
                  double(size.height()) / m_pixels.height());
    painter.drawImage(m_place, m_image);
    painter.restore();
}
