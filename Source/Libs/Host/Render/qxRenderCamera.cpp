#include "Render/qxRenderCamera.h"

#include "Render/qxDigest.h"

#include <limits>

namespace {

const float _widest = 3.0f; ///< field of view in radians; a half turn would have no picture

/// The first three values of a column.
osg::Vec3f column(const osg::Matrix &matrix, osg::UInt32 index)
{
    return osg::Vec3f(matrix[index][0], matrix[index][1], matrix[index][2]);
}

bool isUsable(const qxUberCamera &camera)
{
    for (osg::UInt32 i = 0; i < 4; ++i) {
        if (!qxIsFinite(column(camera.toWorld, i)))
            return false;
        if (i < 3 && !(column(camera.toWorld, i).squareLength() > 0.0f))
            return false;
    }
    return camera.fieldOfView > 0.0f || camera.height > 0.0f;
}

} // namespace

qxRenderCamera::qxRenderCamera(const qxUberCamera &camera, const qxBox &scene, int width,
                               int height)
    : m_far(std::numeric_limits<float>::infinity()), m_width(float(width)), m_height(float(height))
{
    if (!isUsable(camera)) {
        fit(scene, m_width / m_height);
        return;
    }
    m_back = qxUnit(column(camera.toWorld, 2));
    m_right = qxUnit(column(camera.toWorld, 1).cross(m_back));
    m_up = m_back.cross(m_right);
    m_eye = column(camera.toWorld, 3);
    m_parallel = !(camera.fieldOfView > 0.0f);
    m_halfHeight =
        m_parallel ? camera.height * 0.5f : std::tan(std::min(camera.fieldOfView, _widest) * 0.5f);
    m_near = camera.nearPlane > 0.0f ? camera.nearPlane : 0.0f;
    if (camera.farPlane > m_near)
        m_far = camera.farPlane;
}

/// The camera is as near as all corners of the box allow.
void qxRenderCamera::fit(const qxBox &scene, float aspect)
{
    const float margin = 1.06f;
    m_isFitted = true;
    m_halfHeight = std::tan(0.3f);
    m_back = qxUnit(osg::Vec3f(0.62f, 0.36f, 0.78f));
    m_right = qxUnit(osg::Vec3f(0, 1, 0).cross(m_back));
    m_up = m_back.cross(m_right);
    float distance = 0.0f;
    for (int i = 0; i < 8 && !scene.isEmpty(); ++i) {
        const osg::Vec3f corner = scene.corner(i) - scene.centre();
        const float beside = std::fabs(corner.dot(m_right)) / (m_halfHeight * aspect);
        const float above = std::fabs(corner.dot(m_up)) / m_halfHeight;
        distance = std::max(distance, corner.dot(m_back) + std::max(beside, above) * margin);
    }
    m_eye = (scene.isEmpty() ? osg::Vec3f() : scene.centre()) + m_back * distance;
}

void qxRenderCamera::addTo(qxDigest &digest) const
{
    digest.add(m_width, m_height, m_isFitted);
    if (!m_isFitted)
        digest.add(m_parallel, m_eye, m_right, m_up, m_back, m_halfHeight, m_near, m_far);
}

qxUberCamera qxRenderCamera::plain() const
{
    qxUberCamera camera;
    const osg::Vec3f *const columns[] = {&m_right, &m_up, &m_back, &m_eye};
    for (osg::UInt32 i = 0; i < 4; ++i)
        camera.toWorld[i] =
            osg::Vec4f((*columns[i])[0], (*columns[i])[1], (*columns[i])[2], i == 3 ? 1.0f : 0.0f);
    camera.fieldOfView = m_parallel ? 0.0f : 2.0f * std::atan(m_halfHeight);
    camera.height = m_parallel ? 2.0f * m_halfHeight : 0.0f;
    camera.nearPlane = m_near;
    camera.farPlane = std::isfinite(m_far) ? m_far : 0.0f;
    return camera;
}

qxRay qxRenderCamera::ray(float x, float y) const
{
    const float across = (2.0f * x / m_width - 1.0f) * m_halfHeight * m_width / m_height;
    const float upwards = (2.0f * y / m_height - 1.0f) * m_halfHeight;
    const osg::Vec3f beside = m_right * across + m_up * upwards;
    qxRay ray;
    ray.origin = m_parallel ? m_eye + beside : m_eye;
    const osg::Vec3f way = m_parallel ? -m_back : beside - m_back;
    const float length = way.length(); // for each unit of depth
    ray.direction = way * (1.0f / length);
    ray.near = m_near * length;
    ray.far = m_far * length;
    const float pixel = 2.0f * m_halfHeight / m_height;
    const osg::Vec3f steps[2] = {m_right * pixel, m_up * pixel};
    for (int i = 0; i < 2; ++i) {
        if (m_parallel)
            ray.spread.origin[i] = steps[i];
        else
            ray.spread.direction[i] =
                (steps[i] - ray.direction * ray.direction.dot(steps[i])) * (1.0f / length);
    }
    return ray;
}

bool qxRenderCamera::project(const osg::Vec3f &point, osg::Vec2f &place, float &distance) const
{
    const osg::Vec3f way = point - m_eye;
    const float depth = -way.dot(m_back);
    if (!(depth > m_near) || (!m_parallel && !(depth > 0.0f)))
        return false;
    const float scale = m_height * 0.5f / (m_parallel ? m_halfHeight : m_halfHeight * depth);
    place = osg::Vec2f(way.dot(m_right) * scale + m_width * 0.5f,
                       way.dot(m_up) * scale + m_height * 0.5f);
    distance = m_parallel ? depth : way.length();
    return true;
}

float qxRenderCamera::pixelSize(float distance) const
{
    const float size = 2.0f * m_halfHeight / m_height;
    return m_parallel ? size : size * distance;
}
