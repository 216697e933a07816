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
    const float start = 0.8f;
    const float room = 1.0f - start;
    const float peak = qxPeak(light);
    if (!(peak > start))
        return light;
    const float compressed = 1.0f - room * room / (peak + room - start);
    // What is much too bright becomes white, as it does on film.
    const float white = 1.0f - 1.0f / (0.15f * (peak - compressed) + 1.0f);
    return qxMixed(light * (compressed / peak), osg::Vec3f(1, 1, 1) * compressed, white);
}
