#include "Render/qxRenderLight.h"

#include "OSGUberLight.h"
#include "Render/qxDigest.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGSpotLight.h>

#include <limits>
#include <tuple>

namespace {

osg::Vec3f placed(const osg::Matrix &toWorld, const osg::Pnt3f &point)
{
    osg::Pnt3f result;
    toWorld.multMatrixPnt(point, result);
    return osg::Vec3f(result);
}

osg::Vec3f turned(const osg::Matrix &toWorld, const osg::Vec3f &vector)
{
    osg::Vec3f result;
    toWorld.multMatrixVec(vector, result);
    return qxUnit(result);
}

osg::Vec3f colourOf(const osg::LightPtr &core)
{
    const osg::Color4f &colour = core->getDiffuse();
    return osg::Vec3f(colour[0], colour[1], colour[2]);
}

qxRenderLight hostLight(const osg::UberLightPtr &core, const osg::Matrix &toWorld)
{
    qxRenderLight light;
    light.kind = core->getKind() == osg::UberLight::Directional ? qxRenderLight::Directional
        : core->getKind() == osg::UberLight::Spot               ? qxRenderLight::Spot
                                                                : qxRenderLight::Point;
    light.position = placed(toWorld, osg::Pnt3f(0, 0, 0));
    light.direction = turned(toWorld, osg::Vec3f(0, 0, -1));
    light.light = colourOf(core) * core->getIntensity();
    light.range = core->getRange();
    light.innerCosine = std::cos(core->getInnerAngle());
    light.outerCosine = std::cos(core->getOuterAngle());
    return light;
}

/// A white surface that faces such a light has the light's colour.
qxRenderLight graphLight(const osg::LightPtr &core, const osg::Matrix &place)
{
    qxRenderLight light;
    light.light = colourOf(core) * qxPi;
    const auto directional = osg::DirectionalLightPtr::dcast(core);
    if (directional != osg::NullFC)
        light.direction = turned(place, -directional->getDirection());
    const auto point = osg::PointLightPtr::dcast(core);
    if (point == osg::NullFC)
        return light;
    light.kind = qxRenderLight::Point;
    light.position = placed(place, point->getPosition());
    light.attenuation = osg::Vec3f(core->getConstantAttenuation(), core->getLinearAttenuation(),
                                   core->getQuadraticAttenuation());
    const auto spot = osg::SpotLightPtr::dcast(core);
    if (spot == osg::NullFC)
        return light;
    light.kind = qxRenderLight::Spot;
    light.direction = turned(place, spot->getDirection());
    light.outerCosine = std::cos(spot->getSpotCutOff());
    light.innerCosine = light.outerCosine;
    light.exponent = spot->getSpotExponent();
    return light;
}

/// Its members, in full.
auto all(const qxRenderLight &light)
{
    const auto &[kind, position, direction, amount, range, innerCosine, outerCosine, exponent,
                 attenuation, shadow] = light;
    return std::tie(kind, position, direction, amount, range, innerCosine, outerCosine, exponent,
                    attenuation, shadow);
}

bool isUsable(const qxRenderLight &light)
{
    return qxIsFinite(light.position) && qxIsFinite(light.direction) && qxIsFinite(light.light)
        && light.direction.squareLength() > 0.0f && std::isfinite(light.range)
        && std::isfinite(light.innerCosine) && std::isfinite(light.outerCosine);
}

/// The share of a spot's light that goes into a direction.
float inCone(const qxRenderLight &spot, float cosine)
{
    if (cosine < spot.outerCosine)
        return 0.0f;
    const float width = std::max(0.001f, spot.innerCosine - spot.outerCosine);
    const float share = std::clamp((cosine - spot.outerCosine) / width, 0.0f, 1.0f);
    const bool soft = spot.innerCosine > spot.outerCosine;
    const float fading =
        spot.exponent > 0.0f ? std::pow(std::max(cosine, 0.0f), spot.exponent) : 1.0f;
    return (soft ? share * share : 1.0f) * fading;
}

/// The share that is left at a distance; lights of a range end gently.
float left(const qxRenderLight &light, float distance)
{
    const float nearest = 1e-3f;
    const float d = std::max(distance, nearest);
    float end = 1.0f;
    if (light.range > 0.0f) {
        const float ratio = d / light.range;
        end = std::clamp(1.0f - ratio * ratio * ratio * ratio, 0.0f, 1.0f);
    }
    const float falloff = light.attenuation.dot(osg::Vec3f(1, d, d * d));
    return falloff > 0.0f ? end / falloff : end;
}

/// How much light arrives in the middle of the scene; not from nearer than its edge would be.
float amountAt(const qxRenderLight &light, const qxBox &scene)
{
    if (light.kind == qxRenderLight::Directional)
        return qxPeak(light.light);
    const float distance = (light.position - scene.centre()).length();
    return qxPeak(light.light) * left(light, std::max(distance, scene.radius() * 0.5f));
}

void scale(std::vector<qxRenderLight> &lights, float factor)
{
    for (qxRenderLight &light : lights)
        light.light *= factor;
}

} // namespace

bool qxRenderLight::operator==(const qxRenderLight &other) const
{
    return all(*this) == all(other);
}

void qxRenderLight::addTo(qxDigest &digest) const
{
    std::apply([&digest](const auto &...members) { digest.add(members...); }, all(*this));
}

/// Whether nothing gets along a way to the light: most lights of a scene are out here soon.
bool qxRenderLight::isOutOfReach(const osg::Vec3f &way) const
{
    const float square = way.squareLength();
    if (range > 0.0f && square >= range * range)
        return true;
    if (kind != Spot)
        return false;
    const float along = -way.dot(direction);
    return outerCosine > 0.0f
        && (along < 0.0f || along * along < outerCosine * outerCosine * square);
}

qxRenderLight::Arrival qxRenderLight::arrivalAt(const osg::Vec3f &place,
                                                const osg::Vec3f &normal) const
{
    if (kind == Directional) {
        const bool isBehind = normal.dot(direction) > 0.0f;
        return {-direction, std::numeric_limits<float>::infinity(),
                isBehind ? osg::Vec3f() : light};
    }
    const osg::Vec3f way = position - place;
    if (way.dot(normal) < 0.0f || isOutOfReach(way))
        return {direction, 0.0f, osg::Vec3f()};
    const float distance = way.length();
    const osg::Vec3f toLight = distance > 0.0f ? way * (1.0f / distance) : -direction;
    float share = left(*this, distance);
    if (kind == Spot && share > 0.0f)
        share *= inCone(*this, -toLight.dot(direction));
    return {toLight, distance, light * share};
}

void qxRenderLights::add(const osg::LightPtr &core, const osg::Matrix &toWorld)
{
    const auto own = osg::UberLightPtr::dcast(core);
    qxRenderLight light;
    if (own != osg::NullFC) {
        light = hostLight(own, toWorld);
    } else {
        const osg::NodePtr beacon = core->getBeacon();
        light = graphLight(core, beacon == osg::NullFC ? toWorld : beacon->getToWorld());
    }
    if (isUsable(light))
        (core->getOn() ? on : off).push_back(light);
}

void qxRenderLights::expose(const qxBox &scene)
{
    const float factor = exposureFactor(scene);
    scale(on, factor);
    scale(off, factor);
}

float qxRenderLights::exposureFactor(const qxBox &scene) const
{
    float sum = 0.0f;
    for (const qxRenderLight &light : on)
        sum += amountAt(light, scene);
    for (const qxRenderLight &light : off)
        sum += amountAt(light, scene);
    const float least = 1.0f;
    const float most = 2.0f * qxPi;
    if (!(sum > 0.0f) || !std::isfinite(sum))
        return 1.0f;
    return std::clamp(sum, least, most) / sum;
}
