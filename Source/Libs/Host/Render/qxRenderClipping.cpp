#include "Render/qxRenderClipping.h"

#include "Render/qxPictureColour.h"
#include "Render/qxRenderCamera.h"

#include <limits>

namespace {

const float _planeAlpha = 0.35f;

osg::Vec3f cutNormal(const qxClipping &settings)
{
    const osg::Vec3f normal = qxUnit(settings.normal);
    return settings.invert ? -normal : normal;
}

/// A round distance for lines, so that some ten fit into `size`.
float gridStep(float size)
{
    const float rough = size / 10.0f;
    if (!(rough > 0.0f))
        return 1.0f;
    const float power = std::pow(10.0f, std::floor(std::log10(rough)));
    const float digits = rough / power;
    return power * (digits < 1.5f ? 1.0f : digits < 3.5f ? 2.0f : digits < 7.5f ? 5.0f : 10.0f);
}

/// How much of a pixel a line of one pixel's width at this distance covers.
float lineCover(float coordinate, float step, float pixel)
{
    const float place = coordinate / step;
    const float distance = std::fabs(place - std::round(place)) * step;
    return std::clamp(1.0f - distance / pixel, 0.0f, 1.0f);
}

} // namespace

qxRenderClipping::qxRenderClipping(const qxClipping &settings, const qxBox &scene)
    : m_settings(settings), m_active(settings.enabled), m_point(settings.position),
      m_normal(cutNormal(settings)), m_halfSize(scene.radius() * 1.05f),
      m_frame(qxUnit(settings.normal))
{
    const bool good = qxIsFinite(m_point) && qxIsFinite(m_normal);
    m_active = m_active && good && m_normal.squareLength() > 0.5f;
    const osg::Vec3f middle = scene.isEmpty() ? m_point : scene.centre();
    m_centre = middle - m_normal * m_normal.dot(middle - m_point);
}

void qxRenderClipping::limit(qxRay &ray) const
{
    if (!m_active)
        return;
    const float above = height(ray.origin);
    const float rise = m_normal.dot(ray.direction);
    if (rise > 0.0f)
        ray.far = std::min(ray.far, -above / rise);
    else if (rise < 0.0f)
        ray.near = std::max(ray.near, above / -rise);
    else if (above > 0.0f)
        ray.far = -1.0f;
}

float qxRenderClipping::gridCover(const qxRay &ray, float distance, float pixel) const
{
    const float step = gridStep(m_halfSize * 2.0f);
    const osg::Vec3f way = ray.at(distance) - m_centre;
    const float rise = m_frame.z.dot(ray.direction);
    const auto cover = [&](const osg::Vec3f &axis) {
        // How fast the coordinate along the axis changes from pixel to pixel.
        const osg::Vec3f change = axis - m_frame.z * (axis.dot(ray.direction) / rise);
        return lineCover(way.dot(axis), step, pixel * change.length());
    };
    return std::max(cover(m_frame.x), cover(m_frame.y));
}

qxRenderClipping::Crossing qxRenderClipping::crossing(const qxRay &ray,
                                                      const qxRenderCamera &camera) const
{
    const Crossing none = {std::numeric_limits<float>::infinity(), 0.0f, osg::Vec3f()};
    const float rise = m_normal.dot(ray.direction);
    if (!m_active || rise == 0.0f || !(m_settings.showPlane || m_settings.showGrid))
        return none;
    const float distance = -height(ray.origin) / rise;
    const osg::Vec3f way = ray.at(distance) - m_centre;
    const float beside = std::max(std::fabs(way.dot(m_frame.x)), std::fabs(way.dot(m_frame.y)));
    if (!(distance > ray.near && distance < ray.far) || !(beside <= m_halfSize))
        return none;
    const float pixel = camera.pixelSize(distance);
    const float grid = m_settings.showGrid ? gridCover(ray, distance, pixel) : 0.0f;
    const float plane = m_settings.showPlane ? _planeAlpha * (1.0f - grid) : 0.0f;
    const float alpha = grid + plane;
    if (!(alpha > 0.0f))
        return none;
    const osg::Vec3f light =
        qxLightOf(m_settings.gridColor) * grid + qxLightOf(m_settings.planeColor) * plane;
    return {distance, alpha, light * (1.0f / alpha)};
}
