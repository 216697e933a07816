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
const float _paneLike = 0.1f; ///< roughness up to which a thin wall shows what is behind it sharply
const float _mirrorLike = 0.25f; ///< roughness up to which a surface shows others
/// What sharp reflections show is followed with this chance by their share of the light.
const float _curiosity = 3.0f;
const float _patience = 0.6f; ///< with such paths: what they bring is smooth, and many count
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
    Path(const qxSurfacePoint &first, const qxRenderLayer &layer, const osg::Vec4f &base)
        : hit(first)
    {
        meet(layer, base);
        show();
    }

    /// The path has come to this pass of a surface.
    void meet(const qxRenderLayer &layer, const osg::Vec4f &base)
    {
        isUnlit = layer.unlit;
        part = qxShading::Whole;
        surface = hit.surface(layer, base);
        if (!isScattered)
            return;
        surface.roughness = std::max(surface.roughness, _smoothestLater);
        surface.coat = 0.0f; // Nobody sees it from so far.
    }

    /// What the surface itself emits.
    osg::Vec3f emitted() const
    {
        return qxPeak(surface.emission) > 0.0f ? qxShading(surface, hit.toEye).emitted()
                                               : osg::Vec3f();
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
    Gathered gathered(float weight) const { return {light() * weight, shownColour, shownNormal}; }
    /// This surface is what the eye sees, maybe by way of mirrors.
    void show()
    {
        shownNormal = hit.normal;
        shownColour = qxProduct(shownColour, surface.base);
    }

    qxSurfacePoint hit;
    qxShading::Surface surface; ///< there
    qxShading::Part part = qxShading::Whole; ///< of it
    bool isUnlit = false;
    bool isClosed = false; ///< what comes through the surface counts elsewhere
    int length = 1; ///< in surfaces
    osg::Vec3f share = osg::Vec3f(1, 1, 1); ///< of the light at the end that is reflected on
    qxRay ray; ///< after the last turn, and the probability per solid angle of its direction
    float density = 0;
    bool isAlone = false; ///< whether nothing else looked for light from there
    osg::Vec3f attenuation; ///< along the ray
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
        const float weight = other.sum;
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
    float sum = 0; ///< of the light of all that were offered, this one included
};

qxTracer::Seen qxPathTracer::seen(const qxSurfacePoint &hit, const qxRenderLayer &layer,
                                  const osg::Vec4f &base, float share, qxSampler &sampler) const
{
    const osg::Vec3f none;
    const osg::Vec3f colour(base[0], base[1], base[2]);
    const Gathered surface = {none, colour, hit.normal};
    if (layer.unlit)
        return {none, {}, surface, colour, none};
    Path path(hit, layer, base);
    const osg::Vec3f emitted = path.emitted();
    // A pane shows what is behind it as if it were not there.
    path.isClosed = !path.surface.isBody && path.surface.roughness < _paneLike;
    const osg::Vec3f through = path.isClosed && path.surface.transmission > 0.0f
        ? qxShading(path.surface, hit.toEye).straightThrough()
        : none;
    // Of what is hardly seen only some rays are followed.
    const float chance = std::min(1.0f, share / _splitShare);
    if (chance < 1.0f && sampler.next() >= chance)
        return {emitted, {}, surface, none, through};
    Gathered reflections;
    if (qxShading::hasSharpPart(path.surface)) {
        reflections = sharp(path, sampler.branch());
        reflections.light *= 1.0f / chance;
        path.part = qxShading::Rest;
    }
    while (follow(path, sampler)) {}
    return {emitted, reflections, path.gathered(1.0f / chance), none, through};
}

/// What a sharp reflection shows; each sample looks there. Where that is faint, few go on.
qxTracer::Gathered qxPathTracer::sharp(Path path, qxSampler sampler) const
{
    path.part = qxShading::Sharp;
    path.shownColour = osg::Vec3f(1, 1, 1);
    bool goesOn = follow(path, sampler);
    const float chance = std::min(1.0f, _curiosity * qxPeak(path.share));
    if (goesOn && chance < 1.0f) {
        goesOn = sampler.next() < chance;
        path.share *= 1.0f / chance;
    }
    while (goesOn && follow(path, sampler)) {}
    return path.gathered(1.0f);
}

/// Gathers the light of the path's last point and looks for the next one; false at the end.
bool qxPathTracer::follow(Path &path, qxSampler &sampler) const
{
    const qxShading::Surface &surface = path.surface;
    const bool isMirror = path.part == qxShading::Sharp
        || (std::max(surface.metallic, surface.transmission) > 0.5f
            && surface.roughness < _mirrorLike);
    const qxShading shading(surface, path.hit.toEye, path.part);
    path.add(direct(path, shading, sampler));
    const float choice = sampler.next();
    const qxShading::Bounce bounce = shading.bounce(choice, sampler.nextPair());
    const bool leaves = bounce.direction.dot(path.hit.flatNormal) > 0.0f;
    if (!(qxPeak(bounce.share) > 0.0f) || leaves == bounce.through
        || (bounce.through && path.isClosed))
        return false;
    path.share = qxProduct(path.share, bounce.share);
    path.ray = path.hit.leaving(bounce);
    path.density = bounce.density;
    path.isAlone = bounce.through && surface.isBody;
    if (bounce.through)
        path.attenuation = bounce.attenuation;
    if (!isMirror)
        path.scatter();
    // Russian roulette: what counts little is followed seldom, and then counts more.
    const float worth = qxPeak(path.share) * (path.isScattered ? _patience : 1.0f);
    const float chance = path.length > 1 ? std::min(1.0f, worth) : 1.0f;
    if (chance < 1.0f && sampler.next() >= chance)
        return false;
    path.share *= 1.0f / chance;
    if (!findNext(path, sampler))
        return false;
    if (!path.isScattered)
        path.show();
    path.add(path.isUnlit ? path.surface.base : path.emitted());
    return !path.isUnlit && ++path.length <= _longestPath;
}

/// Looks for a surface in the path's direction; the light from where there is none belongs to it.
bool qxPathTracer::findNext(Path &path, qxSampler &sampler) const
{
    qxRay ray = path.ray;
    scene().clipping.limit(ray);
    for (int i = 0; i < _mostPassed && ray.near < ray.far && intersect(ray, path.hit); ++i) {
        const std::vector<qxRenderLayer> &layers = path.hit.instance->surface->layers;
        for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
            if (stopsAt(path, *layer, sampler)) {
                path.share =
                    qxProduct(path.share, qxLeftAfter(path.attenuation, path.hit.distance));
                return true;
            }
        }
        ray.near = path.hit.beyond();
    }
    const float weight =
        path.isAlone ? 1.0f : heuristic(path.density, scene().sky.density(path.ray.direction));
    path.add(around(path.ray, sampler) * weight);
    return false;
}

/// Behind a matt surface light goes straight through what is clear, as that does which is asked
/// for there: both must find the same, and what glass would focus would be single spots.
bool qxPathTracer::stopsAt(Path &path, const qxRenderLayer &layer, qxSampler &sampler) const
{
    const osg::Vec4f base = path.hit.base(layer);
    const float alpha = path.hit.alpha(layer, base[3]);
    if (alpha <= 0.0f || (alpha < 1.0f && sampler.next() >= alpha))
        return false;
    path.isClosed = path.isScattered && layer.isClear() && !layer.unlit;
    path.meet(layer, base);
    if (!path.isClosed)
        return true;
    const osg::Vec3f through = qxShading(path.surface, path.hit.toEye).straightThrough();
    const float chance = std::min(qxPeak(through), 0.9f);
    if (sampler.next() >= chance) {
        path.share *= 1.0f / (1.0f - chance);
        return true;
    }
    path.share = qxProduct(path.share, through * (1.0f / chance));
    return false;
}

/// The light of one lamp and of one direction of the surroundings, later on of one of the two; on
/// average that of all.
osg::Vec3f qxPathTracer::direct(const Path &path, const qxShading &shading,
                                qxSampler &sampler) const
{
    float random = sampler.next();
    Asked asked = askedLamp(path, shading, random);
    const Asked sky = askedSky(path, shading, sampler.nextPair());
    if (path.length == 1)
        return found(asked, path.hit, sampler) + found(sky, path.hit, sampler);
    asked.offer(sky, random);
    return found(asked, path.hit, sampler);
}

/// What gets here of that light.
osg::Vec3f qxPathTracer::found(Asked asked, const qxSurfacePoint &hit, qxSampler &sampler) const
{
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

qxPathTracer::Asked qxPathTracer::askedLamp(const Path &path, const qxShading &shading,
                                            float &random) const
{
    const qxSurfacePoint &hit = path.hit;
    const bool isOpen = shading.letsThrough() && !path.isClosed;
    Asked result;
    for (const qxRenderLight &light : scene().lights.on) {
        const qxRenderLight::Arrival arrival =
            light.arrivalAt(hit.position, isOpen ? osg::Vec3f() : hit.normal);
        if (!(qxPeak(arrival.light) > 0.0f))
            continue;
        Asked one;
        one.light = qxProduct(arrival.light, shading.reflected(arrival.toLight));
        one.toLight = arrival.toLight;
        one.distance = arrival.distance;
        one.shadow = light.shadow;
        one.sum = qxPeak(one.light);
        result.offer(one, random);
    }
    return result;
}

qxPathTracer::Asked qxPathTracer::askedSky(const Path &path, const qxShading &shading,
                                           const osg::Vec2f &place) const
{
    const qxEnvironmentLight::Sample sample = scene().sky.sample(place);
    Asked result;
    const bool isOpen = shading.letsThrough() && !path.isClosed && !path.surface.isBody;
    const bool isBehind = sample.direction.dot(path.hit.flatNormal) <= 0.0f;
    if (!(sample.density > 0.0f) || (isBehind && !isOpen))
        return result;
    const float weight = heuristic(sample.density, shading.density(sample.direction));
    result.share = shading.reflected(sample.direction) * (weight / sample.density);
    result.light = qxProduct(result.share, sample.light);
    result.toLight = sample.direction;
    result.distance = std::numeric_limits<float>::infinity();
    result.isSky = true;
    result.sum = qxPeak(result.light);
    return result;
}
