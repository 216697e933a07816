#include "Render/qxPathTracer.h"

#include "Render/qxRenderCamera.h"
#include "Render/qxShading.h"

#include <limits>

namespace {

const int _longestPath = 24; ///< in surfaces
const int _mostPassed = 64; ///< translucent surfaces between two points of a path
const float _faint = 1.0f / 1024.0f; ///< less light than this is none
const float _lampSize = 0.02f; ///< radius of a lamp, as seen from distance 1
/// Light by way of a matt surface: a few brighter paths would be spots.
const float _brightest = 4.0f;
/// Of surfaces that such light reaches: what mirrors throw on others would be single spots.
const float _smoothestLater = 0.3f;
const float _mirrorLike = 0.25f; ///< roughness up to which a surface shows others
const float _splitShare = 0.25f; ///< of the picture, from which on all rays are followed

float heuristic(float density, float other)
{
    const float square = density * density;
    return square / (square + other * other);
}

} // namespace

/// A way back from the eye towards the light.
class qxPathTracer::Path {
public:
    Path(const qxSurfacePoint &first, const qxRenderLayer &itsLayer, const osg::Vec3f &itsColour)
        : hit(first), layer(&itsLayer), colour(itsColour)
    {
        show();
    }

    /// Light that comes to the eye by this way.
    void add(const osg::Vec3f &light) { (isScattered ? later : now) += qxProduct(light, share); }
    /// A matt surface turned the path: from here on it is one of many that count together.
    void scatter()
    {
        if (isScattered)
            return;
        isScattered = true;
        before = share;
        share = osg::Vec3f(1, 1, 1);
    }
    osg::Vec3f light() const
    {
        const float peak = qxPeak(later);
        return now + qxProduct(before, peak > _brightest ? later * (_brightest / peak) : later);
    }
    /// This surface is what the eye sees, maybe by way of mirrors.
    void show()
    {
        shownNormal = hit.normal;
        shownColour = qxProduct(shownColour, colour);
    }

    qxSurfacePoint hit;
    const qxRenderLayer *layer;
    osg::Vec3f colour;
    int length = 1; ///< in surfaces
    osg::Vec3f share = osg::Vec3f(1, 1, 1); ///< of the light at the end that is reflected on
    osg::Vec3f direction; ///< of the last turn, and its probability per solid angle
    float density = 0;
    bool isScattered = false;
    osg::Vec3f shownColour = osg::Vec3f(1, 1, 1);
    osg::Vec3f shownNormal;

private:
    osg::Vec3f now;
    osg::Vec3f later;
    osg::Vec3f before;
};

/// One of the lamps, or a direction of the surroundings, standing for all of them.
struct qxPathTracer::Asked {
    /// Takes the other one instead as often as it gives more.
    void offer(const Asked &other, float &random)
    {
        const float before = sum;
        const float weight = qxPeak(other.light);
        if (!(weight > 0.0f))
            return;
        const float chance = weight / (before + weight);
        const bool take = random < chance;
        random = take ? random / chance : (random - chance) / (1.0f - chance);
        if (take)
            *this = other;
        sum = before + weight;
    }

    osg::Vec3f light; ///< that is reflected, if nothing is in between
    osg::Vec3f toLight;
    float distance = 0;
    bool shadow = true;
    bool isSky = false;
    osg::Vec3f share; ///< of the light of that direction of the sky
    float sum = 0; ///< of all that were offered
};

qxTracer::Seen qxPathTracer::seen(const qxSurfacePoint &hit, const qxRenderLayer &layer,
                                  const osg::Vec3f &colour, float share, qxSampler &sampler) const
{
    const osg::Vec3f none;
    if (layer.unlit)
        return {none, none, colour, colour, hit.normal};
    // Of what is hardly seen only some rays are followed.
    const float chance = std::min(1.0f, share / _splitShare);
    if (chance < 1.0f && sampler.next() >= chance)
        return {layer.emission, none, none, colour, hit.normal};
    Path path(hit, layer, colour);
    while (follow(path, sampler)) {}
    const osg::Vec3f light = path.light() * (1.0f / chance);
    return {layer.emission + light, light, none, path.shownColour, path.shownNormal};
}

/// Gathers the light of the path's last point and looks for the next one; false at the end.
bool qxPathTracer::follow(Path &path, qxSampler &sampler) const
{
    const qxRenderLayer &layer = *path.layer;
    const bool isMirror = layer.metallic > 0.5f && layer.roughness < _mirrorLike;
    const float roughness =
        path.isScattered ? std::max(layer.roughness, _smoothestLater) : layer.roughness;
    const qxShading shading({path.colour, layer.metallic, roughness}, path.hit.normal,
                            path.hit.toEye);
    path.add(direct(path, shading, sampler));
    const float choice = sampler.next();
    const qxShading::Bounce bounce = shading.bounce(choice, sampler.nextPair());
    if (!(qxPeak(bounce.share) > 0.0f) || bounce.direction.dot(path.hit.flatNormal) <= 0.0f)
        return false;
    path.share = qxProduct(path.share, bounce.share);
    path.direction = bounce.direction;
    path.density = bounce.density;
    if (!isMirror)
        path.scatter();
    // Russian roulette: what counts little is followed seldom, and then counts more.
    const float chance = path.length > 1 ? std::min(1.0f, qxPeak(path.share)) : 1.0f;
    if (chance < 1.0f && sampler.next() >= chance)
        return false;
    path.share *= 1.0f / chance;
    if (!findNext(path, sampler))
        return false;
    if (!path.isScattered)
        path.show();
    path.add(path.layer->unlit ? path.colour : path.layer->emission);
    return !path.layer->unlit && ++path.length <= _longestPath;
}

/// Looks for a surface in the path's direction; the light from where there is none belongs to it.
bool qxPathTracer::findNext(Path &path, qxSampler &sampler) const
{
    qxRay ray;
    ray.origin = path.hit.start(path.direction);
    ray.direction = path.direction;
    const qxRay whole = ray;
    scene().clipping.limit(ray);
    for (int i = 0; i < _mostPassed && ray.near < ray.far && intersect(ray, path.hit); ++i) {
        const std::vector<qxRenderLayer> &layers = path.hit.instance->surface->layers;
        for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
            const osg::Vec4f base = path.hit.base(*layer);
            const float alpha = path.hit.alpha(*layer, base[3]);
            if (alpha <= 0.0f || (alpha < 1.0f && sampler.next() >= alpha))
                continue;
            path.layer = &*layer;
            path.colour = osg::Vec3f(base[0], base[1], base[2]);
            return true;
        }
        ray.near = path.hit.beyond();
    }
    const float weight = heuristic(path.density, scene().sky.density(path.direction));
    path.add(around(whole, sampler) * weight);
    return false;
}

/// The light of one lamp or of one direction of the surroundings; on average that of all.
osg::Vec3f qxPathTracer::direct(const Path &path, const qxShading &shading,
                                qxSampler &sampler) const
{
    const qxSurfacePoint &hit = path.hit;
    float random = sampler.next();
    Asked asked = askedLamp(hit, shading, random);
    asked.offer(askedSky(hit, shading, sampler.nextPair()), random);
    if (!(asked.sum > _faint))
        return osg::Vec3f();
    if (!asked.isSky) {
        // Towards some place of a lamp that is a disc.
        const osg::Vec2f place = sampler.nextPair();
        const qxFrame frame(asked.toLight);
        const float radius = _lampSize * std::sqrt(place[0]);
        const float angle = 2.0f * qxPi * place[1];
        asked.toLight = qxUnit(asked.toLight + frame.x * (radius * std::cos(angle))
                               + frame.y * (radius * std::sin(angle)));
    }
    const float scale = asked.sum / qxPeak(asked.light);
    if (!asked.shadow)
        return asked.light * scale;
    const osg::Vec3f through = transmittance(hit, asked.toLight, asked.distance) * scale;
    if (!asked.isSky || !scene().environment || !(qxPeak(through) > 0.0f))
        return qxProduct(asked.light, through);
    qxRay ray;
    ray.origin = hit.start(asked.toLight);
    ray.direction = asked.toLight;
    return qxProduct(qxProduct(asked.share, through), around(ray, sampler));
}

qxPathTracer::Asked qxPathTracer::askedLamp(const qxSurfacePoint &hit, const qxShading &shading,
                                            float &random) const
{
    Asked result;
    for (const qxRenderLight &light : scene().lights.on) {
        const qxRenderLight::Arrival arrival = light.arrivalAt(hit.position, hit.normal);
        if (!(qxPeak(arrival.light) > 0.0f))
            continue;
        Asked one;
        one.light = qxProduct(arrival.light, shading.reflected(arrival.toLight));
        one.toLight = arrival.toLight;
        one.distance = arrival.distance;
        one.shadow = light.shadow;
        result.offer(one, random);
    }
    return result;
}

qxPathTracer::Asked qxPathTracer::askedSky(const qxSurfacePoint &hit, const qxShading &shading,
                                           const osg::Vec2f &place) const
{
    const qxEnvironmentLight::Sample sample = scene().sky.sample(place);
    Asked result;
    if (!(sample.density > 0.0f) || sample.direction.dot(hit.flatNormal) <= 0.0f)
        return result;
    const float weight = heuristic(sample.density, shading.density(sample.direction));
    result.share = shading.reflected(sample.direction) * (weight / sample.density);
    result.light = qxProduct(result.share, sample.light);
    result.toLight = sample.direction;
    result.distance = std::numeric_limits<float>::infinity();
    result.isSky = true;
    return result;
}
