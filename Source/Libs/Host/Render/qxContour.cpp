#include "Render/qxContour.h"

namespace {

/// An end of a line in the picture.
struct End {
    osg::Vec2f place;
    float distance;
};

osg::Vec3f placed(const osg::Matrix &toWorld, const osg::Vec3f &point)
{
    osg::Pnt3f result;
    toWorld.multMatrixPnt(osg::Pnt3f(point), result);
    return osg::Vec3f(result);
}

/// Where the plane cuts a triangle; `heights` are those of the corners above the plane. The number
/// of points found is 0 or 2.
int cut(const osg::Vec3f (&corners)[3], const float (&heights)[3], osg::Vec3f (&points)[2])
{
    int found = 0;
    for (int i = 0; i < 3 && found < 2; ++i) {
        const int next = (i + 1) % 3;
        if ((heights[i] > 0.0f) == (heights[next] > 0.0f))
            continue;
        const float share = heights[i] / (heights[i] - heights[next]);
        points[found++] = qxMixed(corners[i], corners[next], share);
    }
    return found;
}

/// Draws lines of a width in pixels with soft edges.
class Pen {
public:
    Pen(std::vector<qxContour::Pixel> &pixels, int width, int height, int lineWidth)
        : m_pixels(pixels), m_width(width), m_height(height), m_half(float(lineWidth) * 0.5f)
    {
    }

    void draw(const End &a, const End &b)
    {
        const float edge = m_half + 0.5f;
        const auto low = [edge](float first, float second) {
            return int(std::floor(std::clamp(std::min(first, second) - edge, 0.0f, 20000.0f)));
        };
        const auto high = [edge](float first, float second, int size) {
            const float last = std::ceil(std::max(first, second) + edge);
            return int(std::clamp(last, 0.0f, float(size)));
        };
        const int lastX = high(a.place[0], b.place[0], m_width);
        const int lastY = high(a.place[1], b.place[1], m_height);
        for (int y = low(a.place[1], b.place[1]); y < lastY; ++y) {
            for (int x = low(a.place[0], b.place[0]); x < lastX; ++x)
                dot(x, y, a, b);
        }
    }

private:
    void dot(int x, int y, const End &a, const End &b)
    {
        const osg::Vec2f line = b.place - a.place;
        const osg::Vec2f way = osg::Vec2f(float(x) + 0.5f, float(y) + 0.5f) - a.place;
        const float square = line.squareLength();
        const float along = square > 0.0f ? std::clamp(way.dot(line) / square, 0.0f, 1.0f) : 0.0f;
        const float beside = (way - line * along).length();
        const float cover = std::clamp(m_half + 0.5f - beside, 0.0f, 1.0f);
        if (cover <= 0.0f)
            return;
        const float distance = 1.0f / qxMixed(1.0f / a.distance, 1.0f / b.distance, along);
        put(m_pixels[std::size_t(y) * std::size_t(m_width) + std::size_t(x)], {cover, distance});
    }

    /// Of several lines the nearest of those that cover the pixel well counts.
    static void put(qxContour::Pixel &pixel, const qxContour::Pixel &dot)
    {
        const bool isGood = dot.cover > 0.5f;
        const bool wasGood = pixel.cover > 0.5f;
        if (isGood && wasGood ? dot.distance < pixel.distance : dot.cover > pixel.cover)
            pixel = dot;
    }

    std::vector<qxContour::Pixel> &m_pixels;
    int m_width;
    int m_height;
    float m_half;
};

} // namespace

/// Goes over all triangles and draws where they are cut.
struct qxContour::Sheet {
    void draw(const qxRenderInstance &instance)
    {
        // The plane in the coordinates of the geometry: heights are linear in the position.
        const osg::Vec3f base = placed(instance.toWorld, osg::Vec3f());
        const float atOrigin = clipping.height(base);
        osg::Vec3f slope;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            osg::Vec3f axis;
            axis[i] = 1.0f;
            slope[i] = clipping.height(placed(instance.toWorld, axis)) - atOrigin;
        }
        const std::vector<osg::Vec3f> &positions = instance.geometry->positions();
        for (const qxRenderGeometry::Triangle &triangle : instance.geometry->triangles()) {
            osg::Vec3f corners[3];
            float heights[3];
            for (std::size_t k = 0; k < 3; ++k) {
                corners[k] = positions[triangle[k]];
                heights[k] = slope.dot(corners[k]) + atOrigin;
            }
            osg::Vec3f points[2];
            if (cut(corners, heights, points) == 2)
                drawLine(placed(instance.toWorld, points[0]), placed(instance.toWorld, points[1]));
        }
    }

    void drawLine(const osg::Vec3f &from, const osg::Vec3f &to)
    {
        End a;
        End b;
        if (camera.project(from, a.place, a.distance) && camera.project(to, b.place, b.distance))
            pen.draw(a, b);
    }

    const qxRenderClipping &clipping;
    const qxRenderCamera &camera;
    Pen pen;
};

qxContour::qxContour(const qxRenderGroup &group, const qxRenderClipping &clipping,
                     const qxRenderCamera &camera, int width, int height)
    : m_width(width)
{
    if (!clipping.hasContour())
        return;
    m_pixels.resize(std::size_t(width) * std::size_t(height));
    const int lineWidth = std::min(clipping.settings().contourWidth, 64);
    Sheet sheet{clipping, camera, Pen(m_pixels, width, height, lineWidth)};
    for (const qxRenderInstance &instance : group.instances()) {
        if (instance.embree)
            sheet.draw(instance);
    }
}

qxContour::Pixel qxContour::at(int x, int y) const
{
    if (m_pixels.empty())
        return Pixel();
    return m_pixels[std::size_t(y) * std::size_t(m_width) + std::size_t(x)];
}
