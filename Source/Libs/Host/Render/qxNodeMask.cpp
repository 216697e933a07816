#include "Render/qxNodeMask.h"

#include "Render/qxRenderCamera.h"
#include "Render/qxRenderClipping.h"
#include "Render/qxRenderPicking.h"

#include <algorithm>
#include <limits>

namespace {

const float nothing = -std::numeric_limits<float>::infinity();

/// A corner as the camera sees it; all of it is linear in space, so that edges can be cut.
struct Corner {
    float x, y; ///< for a perspective to be divided by the depth
    float depth; ///< along the view
    float cut; ///< above 0 where the clipping plane cuts away
};

Corner mixed(const Corner &a, const Corner &b, float share)
{
    return {qxMixed(a.x, b.x, share), qxMixed(a.y, b.y, share), qxMixed(a.depth, b.depth, share),
            qxMixed(a.cut, b.cut, share)};
}

/// A corner in the picture. Nearness is linear there and grows towards the eye.
struct Spot {
    float x, y, nearness;
};

/// How corners get from the coordinates of an instance into the picture.
class Projection {
public:
    Projection(const qxRenderCamera &camera, const qxRenderClipping &clipping)
        : m_camera(camera), m_clipping(clipping), m_scale(1.0f / camera.pixelStep())
    {
        const qxRay middle = camera.ray(camera.middle()[0], camera.middle()[1]);
        m_near = std::max(middle.near, camera.isParallel() ? 0.0f : 1e-5f);
        m_far = middle.far;
        setPlace(osg::Matrix());
    }

    /// The following corners are in the coordinates that this matrix brings into the world.
    void setPlace(const osg::Matrix &toWorld)
    {
        const osg::Vec3f origin = column(toWorld, 3);
        const float cut = m_clipping.isActive() ? m_clipping.height(origin) : -1.0f;
        const osg::Vec3f way = origin - m_camera.eye();
        m_origin = {way.dot(m_camera.right()) * m_scale, way.dot(m_camera.up()) * m_scale,
                    -way.dot(m_camera.back()), cut};
        for (osg::UInt32 i = 0; i < 3; ++i) {
            const osg::Vec3f axis = column(toWorld, i);
            m_axes[i] = {axis.dot(m_camera.right()) * m_scale, axis.dot(m_camera.up()) * m_scale,
                         -axis.dot(m_camera.back()),
                         m_clipping.isActive() ? m_clipping.normal().dot(axis) : 0.0f};
        }
    }

    Corner corner(const osg::Vec3f &point) const
    {
        Corner result = m_origin;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            result.x += m_axes[i].x * point[i];
            result.y += m_axes[i].y * point[i];
            result.depth += m_axes[i].depth * point[i];
            result.cut += m_axes[i].cut * point[i];
        }
        return result;
    }

    /// Above 0 where the camera or the clipping plane shows nothing.
    float outside(const Corner &corner, int plane) const
    {
        return plane == 0 ? m_near - corner.depth : plane == 1 ? corner.depth - m_far : corner.cut;
    }
    bool isInside(const Corner &corner) const
    {
        return corner.depth >= m_near && corner.depth <= m_far && corner.cut <= 0.0f;
    }

    Spot spot(const Corner &corner) const
    {
        const float factor = m_camera.isParallel() ? 1.0f : 1.0f / corner.depth;
        return {corner.x * factor + m_camera.middle()[0], corner.y * factor + m_camera.middle()[1],
                m_camera.isParallel() ? -corner.depth : factor};
    }

    /// Of something at that distance along a ray.
    float nearness(const qxRay &ray, float distance) const
    {
        const float depth = (m_camera.eye() - ray.at(distance)).dot(m_camera.back());
        return m_camera.isParallel() ? -depth : 1.0f / std::max(depth, 1e-12f);
    }

private:
    static osg::Vec3f column(const osg::Matrix &matrix, osg::UInt32 index)
    {
        return osg::Vec3f(matrix[index][0], matrix[index][1], matrix[index][2]);
    }

    const qxRenderCamera &m_camera;
    const qxRenderClipping &m_clipping;
    float m_scale; ///< pixels for a unit of length at depth 1, or, parallel, at any
    float m_near;
    float m_far;
    Corner m_origin;
    Corner m_axes[3];
};

/// The triangles of the instances, one after the other.
class Triangles {
public:
    Triangles(const std::vector<osg::UInt32> &nodes, const qxRenderGroup &group,
              const Projection &projection)
        : m_projection(projection)
    {
        for (const qxRenderInstance &instance : group.instances()) {
            if (instance.isVisible && std::binary_search(nodes.begin(), nodes.end(), instance.node))
                m_instances.push_back(&instance);
        }
    }

    bool areNone() const { return m_instances.empty(); }

    /// Calls `draw` with the three spots of each one that is to be seen, cut as the picture is.
    template <class Draw>
    void visit(const Draw &draw)
    {
        for (const qxRenderInstance *instance : m_instances) {
            const qxRenderGeometry &geometry = *instance->geometry;
            m_projection.setPlace(instance->toWorld);
            m_corners.clear();
            m_spots.clear();
            m_isInside.clear();
            for (const osg::Vec3f &position : geometry.positions())
                take(m_projection.corner(position));
            for (const qxRenderGeometry::Triangle &triangle : geometry.triangles()) {
                if (m_isInside[triangle[0]] && m_isInside[triangle[1]] && m_isInside[triangle[2]])
                    draw(m_spots[triangle[0]], m_spots[triangle[1]], m_spots[triangle[2]]);
                else
                    cut(triangle, draw);
            }
        }
    }

private:
    void take(const Corner &corner)
    {
        const bool isInside = m_projection.isInside(corner);
        m_corners.push_back(corner);
        m_isInside.push_back(isInside);
        m_spots.push_back(isInside ? m_projection.spot(corner) : Spot());
    }

    /// Cuts a polygon at one plane after the other (Sutherland and Hodgman, 1974).
    template <class Draw>
    void cut(const qxRenderGeometry::Triangle &triangle, const Draw &draw) const
    {
        std::vector<Corner> polygon;
        for (const std::uint32_t corner : triangle)
            polygon.push_back(m_corners[corner]);
        for (int plane = 0; plane < 3; ++plane) {
            std::vector<Corner> rest;
            for (std::size_t i = 0; i < polygon.size(); ++i) {
                const Corner &here = polygon[i];
                const Corner &next = polygon[(i + 1) % polygon.size()];
                const float height = m_projection.outside(here, plane);
                const float nextHeight = m_projection.outside(next, plane);
                if (height <= 0.0f)
                    rest.push_back(here);
                if ((height <= 0.0f) != (nextHeight <= 0.0f))
                    rest.push_back(mixed(here, next, height / (height - nextHeight)));
            }
            polygon.swap(rest);
        }
        for (std::size_t i = 2; i < polygon.size(); ++i)
            draw(m_projection.spot(polygon[0]), m_projection.spot(polygon[i - 1]),
                 m_projection.spot(polygon[i]));
    }

    Projection m_projection;
    std::vector<const qxRenderInstance *> m_instances;
    std::vector<Corner> m_corners; ///< of the present instance
    std::vector<Spot> m_spots; ///< the same, where inside
    std::vector<char> m_isInside;
};

/// The nearness of what is drawn, for all pixels of a picture.
class Sheet {
public:
    Sheet(int width, int height)
        : m_width(width), m_height(height), m_left(width), m_bottom(height),
          m_values(std::size_t(width) * std::size_t(height), nothing)
    {
    }

    float at(int x, int y) const { return m_values[place(x, y)]; }

    /// Every pixel that the triangle touches, as far as that is known from its edges and its box.
    void draw(const Spot &a, const Spot &b, const Spot &c)
    {
        const auto [left, right] = std::minmax({a.x, b.x, c.x});
        const auto [bottom, top] = std::minmax({a.y, b.y, c.y});
        const int firstX = first(left, m_width);
        const int lastX = last(right, m_width);
        const int firstY = first(bottom, m_height);
        const int lastY = last(top, m_height);
        if (firstX > lastX || firstY > lastY)
            return;
        m_left = std::min(m_left, firstX);
        m_right = std::max(m_right, lastX);
        m_bottom = std::min(m_bottom, firstY);
        m_top = std::max(m_top, lastY);
        if (firstX == lastX && firstY == lastY) // Most triangles of fine surfaces are that small.
            return note(place(firstX, firstY), std::max({a.nearness, b.nearness, c.nearness}));
        const Slope slope(a, b, c);
        for (int y = firstY; y <= lastY; ++y)
            drawRow(slope, y, firstX, lastX);
    }

    /// Which pixels were drawn, in the smallest rectangle around them.
    qxNodeMask mask() const
    {
        qxNodeMask mask;
        if (m_left > m_right)
            return mask;
        mask.left = m_left;
        mask.bottom = m_bottom;
        mask.width = m_right - m_left + 1;
        mask.height = m_top - m_bottom + 1;
        mask.covered.resize(std::size_t(mask.width) * std::size_t(mask.height));
        auto covered = mask.covered.begin();
        for (int y = m_bottom; y <= m_top; ++y) {
            const auto row = m_values.begin() + std::ptrdiff_t(place(m_left, y));
            covered = std::transform(row, row + mask.width, covered,
                                     [](float nearness) { return nearness > nothing ? 1 : 0; });
        }
        return mask;
    }

    /// Whether a pixel beside one that was drawn was not.
    bool isRim(int x, int y) const
    {
        return !(isDrawn(x - 1, y) && isDrawn(x + 1, y) && isDrawn(x, y - 1) && isDrawn(x, y + 1));
    }

private:
    /// Three edges and the nearness between them, for the middles of pixels.
    struct Slope {
        Slope(const Spot &a, const Spot &b, const Spot &c)
        {
            const Spot *const spots[] = {&a, &b, &c};
            const float area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
            const float side = area < 0.0f ? -1.0f : 1.0f;
            for (int i = 0; i < 3; ++i)
                edges[i] = edge(*spots[i], *spots[(i + 1) % 3], side);
            least = std::min({a.nearness, b.nearness, c.nearness});
            most = std::max({a.nearness, b.nearness, c.nearness});
            if (std::fabs(area) > 1e-6f) {
                const float ab = b.nearness - a.nearness;
                const float ac = c.nearness - a.nearness;
                stepX = (ab * (c.y - a.y) - ac * (b.y - a.y)) / area;
                stepY = (ac * (b.x - a.x) - ab * (c.x - a.x)) / area;
            }
            start = a.nearness + stepX * (0.5f - a.x) + stepY * (0.5f - a.y);
        }

        /// Not below 0 for pixels on the inner side and for those that the edge touches.
        struct Edge {
            float x, y, start;
        };
        static Edge edge(const Spot &from, const Spot &to, float side)
        {
            const float x = (from.y - to.y) * side;
            const float y = (to.x - from.x) * side;
            const float touch = 0.5f * (std::fabs(x) + std::fabs(y));
            return {x, y, x * (0.5f - from.x) + y * (0.5f - from.y) + touch};
        }

        Edge edges[3];
        float least, most, start;
        float stepX = 0.0f;
        float stepY = 0.0f;
    };

    void drawRow(const Slope &slope, int y, int firstX, int lastX)
    {
        float from = float(firstX);
        float to = float(lastX);
        for (const Slope::Edge &edge : slope.edges) {
            const float here = edge.start + edge.y * float(y);
            if (edge.x > 0.0f)
                from = std::max(from, -here / edge.x);
            else if (edge.x < 0.0f)
                to = std::min(to, here / -edge.x);
            else if (here < 0.0f)
                return;
        }
        if (!(from <= to))
            return;
        const float start = slope.start + slope.stepY * float(y);
        for (int x = int(from) + (float(int(from)) < from); x <= int(to); ++x)
            note(place(x, y), std::clamp(start + slope.stepX * float(x), slope.least, slope.most));
    }

    /// Rounded down by the conversion alone: there are many triangles.
    static int first(float value, int size) { return int(std::clamp(value, 0.0f, float(size))); }
    static int last(float value, int size)
    {
        return value < 0.0f ? -1 : int(std::min(value, float(size - 1)));
    }
    /// Nobody knows of what is outside of the picture: its border is no end of the nodes.
    bool isDrawn(int x, int y) const
    {
        return x < 0 || y < 0 || x >= m_width || y >= m_height || at(x, y) > nothing;
    }
    std::size_t place(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_width) + std::size_t(x);
    }
    void note(std::size_t place, float nearness)
    {
        m_values[place] = std::max(m_values[place], nearness);
    }

    int m_width;
    int m_height;
    int m_left; ///< of what was drawn, as the following
    int m_right = -1;
    int m_bottom;
    int m_top = -1;
    std::vector<float> m_values;
};

/// Where nothing else stands in front of the nodes. Some pixels beside each other share an answer,
/// which takes a ray.
class Sight {
public:
    Sight(const qxRenderGroup &group, const qxRenderCamera &camera,
          const qxRenderClipping &clipping, const Projection &projection)
        : m_group(group), m_camera(camera), m_clipping(clipping), m_projection(projection),
          m_width(int(2.0f * camera.middle()[0]) / block + 1)
    {
        m_known.assign(std::size_t(m_width) * std::size_t(2.0f * camera.middle()[1] / block + 1),
                       Unknown);
    }

    bool isFree(int x, int y, float nearness)
    {
        char &known =
            m_known[std::size_t(y / block) * std::size_t(m_width) + std::size_t(x / block)];
        if (known == Unknown)
            known = look(x, y, nearness) ? Free : Taken;
        return known == Free;
    }

private:
    enum : char { Unknown, Free, Taken };
    static constexpr int block = 3; ///< pixels

    bool look(int x, int y, float nearness) const
    {
        const float tolerance = 0.005f; // What touches the nodes does not hide them.
        qxRay ray = m_camera.ray(float(x) + 0.5f, float(y) + 0.5f);
        m_clipping.limit(ray);
        const float distance = qxDistanceAlong(ray, m_group);
        return !(distance < ray.far) // nothing at all
            || m_projection.nearness(ray, distance) <= nearness + std::fabs(nearness) * tolerance;
    }

    const qxRenderGroup &m_group;
    const qxRenderCamera &m_camera;
    const qxRenderClipping &m_clipping;
    const Projection &m_projection;
    int m_width;
    std::vector<char> m_known;
};

} // namespace

qxNodeMask qxMaskOf(const std::vector<osg::UInt32> &nodes, const qxRenderGroup &group,
                    const qxRenderCamera &camera, const qxRenderClipping &clipping)
{
    if (clipping.hidesScene())
        return qxNodeMask();
    const Projection projection(camera, clipping);
    Triangles triangles(nodes, group, projection);
    if (triangles.areNone())
        return qxNodeMask();
    Sheet sheet(int(2.0f * camera.middle()[0]), int(2.0f * camera.middle()[1]));
    triangles.visit([&sheet](const Spot &a, const Spot &b, const Spot &c) { sheet.draw(a, b, c); });
    qxNodeMask mask = sheet.mask();
    Sight sight(group, camera, clipping, projection);
    for (int y = 0; y < mask.height; ++y) {
        for (int x = 0; x < mask.width; ++x) {
            const int atX = mask.left + x;
            const int atY = mask.bottom + y;
            if (!mask.covers(x, y) || !sheet.isRim(atX, atY))
                continue;
            mask.rim.push_back({x, y, sight.isFree(atX, atY, sheet.at(atX, atY))});
        }
    }
    return mask;
}
