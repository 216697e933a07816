#include "Render/qxPictureColour.h"

#include "Render/qxRenderMath.h"

namespace {

float linear(float shown)
{
    return shown <= 0.04045f ? shown / 12.92f : std::pow((shown + 0.055f) / 1.055f, 2.4f);
}

float shown(float light)
{
    if (!(light > 0.0f)) // also what is no number
        return 0.0f;
    if (light >= 1.0f)
        return 1.0f;
    return light <= 0.0031308f ? light * 12.92f : 1.055f * std::pow(light, 1 / 2.4f) - 0.055f;
}

} // namespace

osg::Vec3f qxLightOf(const osg::Color3f &colour)
{
    return osg::Vec3f(linear(colour[0]), linear(colour[1]), linear(colour[2]));
}

osg::Vec3f qxShownColour(const osg::Vec3f &light)
{
    return osg::Vec3f(shown(light[0]), shown(light[1]), shown(light[2]));
}

osg::Vec3f qxToneMapped(const osg::Vec3f &light)
{
    // What surfaces without colour of their own mirror of a white room is no part of their colour.
    const float mirrored = 0.04f;
    const float start = 0.8f - mirrored;
    const float desaturation = 0.15f;
    const float least = std::min(light[0], std::min(light[1], light[2]));
    const float offset =
        least < 2.0f * mirrored ? least - least * least / (4.0f * mirrored) : mirrored;
    const osg::Vec3f colour = light - osg::Vec3f(1, 1, 1) * offset;
    const float peak = qxPeak(colour);
    if (!(peak > start))
        return colour;
    const float room = 1.0f - start;
    const float compressed = 1.0f - room * room / (peak + room - start);
    const float white = 1.0f - 1.0f / (desaturation * (peak - compressed) + 1.0f);
    return qxMixed(colour * (compressed / peak), osg::Vec3f(1, 1, 1) * compressed, white);
}
