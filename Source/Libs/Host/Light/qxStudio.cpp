#include "Light/qxStudio.h"

#include <iterator>

namespace {

/// A lamp behind a white cloth, a rectangle with rounded corners.
struct SoftBox {
    osg::Vec3f direction; ///< towards its middle
    osg::Vec2f half; ///< width and height, as seen from distance 1
    float light; ///< in the middle
    osg::Vec3f colour;
};

const SoftBox _boxes[] = {
    // The key light: large, high, left of a viewer who stands where cameras do by default.
    {osg::Vec3f(-0.30f, 0.75f, 0.80f), osg::Vec2f(0.55f, 0.38f), 7.5f, {1.0f, 0.985f, 0.96f}},
    // Fills the shadows from the right.
    {osg::Vec3f(1.0f, 0.35f, 0.15f), osg::Vec2f(0.30f, 0.55f), 2.6f, {0.97f, 0.985f, 1.0f}},
    // Two strips from behind draw the edges.
    {osg::Vec3f(-0.85f, 0.35f, -0.65f), osg::Vec2f(0.14f, 0.60f), 5.5f, {0.97f, 0.985f, 1.0f}},
    {osg::Vec3f(0.55f, 0.45f, -0.85f), osg::Vec2f(0.12f, 0.50f), 5.0f, {1.0f, 0.99f, 0.97f}},
    // A ceiling, for what lies flat.
    {osg::Vec3f(0.0f, 1.0f, -0.15f), osg::Vec2f(0.50f, 0.30f), 2.4f, {1.0f, 1.0f, 1.0f}},
};

float smooth(float from, float to, float x)
{
    const float share = std::clamp((x - from) / (to - from), 0.0f, 1.0f);
    return share * share * (3.0f - 2.0f * share);
}

/// Walls that become brighter upwards, and a floor that scatters their light back.
osg::Vec3f room(float height)
{
    const osg::Vec3f floor =
        qxMixed(osg::Vec3f(0.33f, 0.33f, 0.33f), osg::Vec3f(0.21f, 0.208f, 0.205f),
                smooth(0.0f, 1.0f, -height));
    const osg::Vec3f walls = qxMixed(osg::Vec3f(0.36f, 0.363f, 0.37f),
                                     osg::Vec3f(0.56f, 0.565f, 0.575f), smooth(0.0f, 0.9f, height));
    return qxMixed(floor, walls, smooth(-0.12f, 0.1f, height));
}

osg::Vec3f lightOf(const SoftBox &box, const osg::Vec3f &direction)
{
    const osg::Vec3f towards = qxUnit(box.direction);
    const float ahead = direction.dot(towards);
    if (ahead <= 0.05f)
        return osg::Vec3f();
    const osg::Vec3f across = qxUnit(osg::Vec3f(0, 1, 0).cross(towards));
    const osg::Vec3f up = towards.cross(across);
    const float x = direction.dot(across) / ahead;
    const float y = direction.dot(up) / ahead;
    const float corner = 0.08f;
    const float outX = std::max(std::fabs(x) - box.half[0] + corner, 0.0f);
    const float outY = std::max(std::fabs(y) - box.half[1] + corner, 0.0f);
    const float edge = std::sqrt(outX * outX + outY * outY);
    const float fromMiddle =
        (x * x) / (box.half[0] * box.half[0]) + (y * y) / (box.half[1] * box.half[1]);
    // The lamp shines through the cloth's middle more than through its edges.
    const float inside = 1.0f - 0.35f * std::min(fromMiddle, 1.5f) / 1.5f;
    return box.colour
        * (box.light * inside * (1.0f - smooth(corner * 0.75f, corner * 1.25f, edge)));
}

} // namespace

qxLightPicture qxStudio::picture()
{
    qxLightPicture result(512, 256);
    for (int y = 0; y < result.height; ++y) {
        for (int x = 0; x < result.width; ++x) {
            const osg::Vec2f place((float(x) + 0.5f) / float(result.width),
                                   (float(y) + 0.5f) / float(result.height));
            const osg::Vec3f direction = qxLightPicture::directionOf(place);
            osg::Vec3f &light = result.at(x, y);
            light = room(direction[1]);
            for (const SoftBox &box : _boxes)
                light += lightOf(box, direction);
        }
    }
    return result;
}
