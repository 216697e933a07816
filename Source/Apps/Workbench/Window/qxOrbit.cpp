#include "qxOrbit.h"

#include "qxUberCameraPool.h"

#include <algorithm>
#include <cmath>

namespace {

const float pi = 3.14159265f;
const float minimumDepth = 1e-4f;

osg::Vec3f column(const qxUberCamera &camera, int number)
{
    const osg::Vec4f values = camera.toWorld[osg::UInt32(number)];
    return osg::Vec3f(values[0], values[1], values[2]);
}

osg::Pnt3f eyeOf(const qxUberCamera &camera)
{
    const osg::Vec3f eye = column(camera, 3);
    return osg::Pnt3f(eye[0], eye[1], eye[2]);
}

void place(qxUberCamera &camera, const osg::Pnt3f &eye, const osg::Vec3f &back)
{
    osg::Vec3f right = osg::Vec3f(0, 1, 0).cross(back);
    right.normalize();
    const osg::Vec3f up = back.cross(right);
    camera.toWorld = osg::Matrix(right[0], up[0], back[0], eye[0], right[1], up[1], back[1], eye[1],
                                 right[2], up[2], back[2], eye[2], 0, 0, 0, 1);
}

void moveEye(qxUberCamera &camera, const osg::Vec3f &step)
{
    const osg::Pnt3f eye = eyeOf(camera) + step;
    camera.toWorld.setTranslate(eye[0], eye[1], eye[2]);
}

/// The height of the picture at that depth, in world units.
float pictureHeight(const qxUberCamera &camera, float depth)
{
    if (camera.fieldOfView <= 0)
        return camera.height;
    return 2 * depth * std::tan(camera.fieldOfView / 2);
}

} // namespace

float qxOrbit::depth(const qxUberCamera &camera, const osg::Pnt3f &point)
{
    return std::max(minimumDepth, (eyeOf(camera) - point).dot(column(camera, 2)));
}

void qxOrbit::turn(qxUberCamera &camera, const osg::Pnt3f &pivot, float right, float up)
{
    const osg::Vec3f arm = eyeOf(camera) - pivot;
    const float distance = std::max(minimumDepth, arm.length());
    const float steepest = pi / 2 - 0.01f;
    // From straight above or below only the camera itself tells which way is right.
    const osg::Vec3f side = column(camera, 0);
    const bool isVertical = std::hypot(arm[0], arm[2]) < 1e-4f * distance;
    const float before = isVertical ? std::atan2(-side[2], side[0]) : std::atan2(arm[0], arm[2]);
    const float azimuth = before - right * pi;
    const float elevation =
        std::max(-steepest, std::min(steepest, std::asin(arm[1] / distance) + up * pi));
    const osg::Vec3f back(std::cos(elevation) * std::sin(azimuth), std::sin(elevation),
                          std::cos(elevation) * std::cos(azimuth));
    place(camera, pivot + back * distance, back);
}

void qxOrbit::pan(qxUberCamera &camera, osg::Pnt3f &pivot, float right, float up)
{
    const float height = pictureHeight(camera, depth(camera, pivot));
    const osg::Vec3f step =
        column(camera, 0) * (-right * height) + column(camera, 1) * (-up * height);
    moveEye(camera, step);
    pivot += step;
}

void qxOrbit::zoom(qxUberCamera &camera, const osg::Pnt3f &pivot, float factor)
{
    if (camera.fieldOfView <= 0) {
        camera.height /= factor;
        return;
    }
    const osg::Vec3f arm = eyeOf(camera) - pivot;
    moveEye(camera, arm * (1 / factor - 1));
}

void qxOrbit::fit(qxUberCamera &camera, const osg::Pnt3f &centre, float radius, float aspect)
{
    const osg::Vec3f back = column(camera, 2);
    const float narrow = std::min(1.0f, aspect);
    if (camera.fieldOfView <= 0)
        camera.height = 2 * radius / narrow;
    const float half = std::max(0.01f, camera.fieldOfView / 2);
    const float distance = camera.fieldOfView > 0 ? radius / (std::sin(half) * narrow) : 2 * radius;
    moveEye(camera, centre + back * distance - eyeOf(camera));
}
