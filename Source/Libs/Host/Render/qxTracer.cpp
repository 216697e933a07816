#include "Render/qxTracer.h"

#include "Render/qxRenderCamera.h"
#include "Render/qxShading.h"

#include <limits>

namespace {

const float _infinity = std::numeric_limits<float>::infinity();
const unsigned int _all = qxRenderGroup::Opaque | qxRenderGroup::Translucent;

const int _mostSurfaces = 64; ///< that a ray passes through
const float _nothing = 1.0f / 1024.0f; ///< less light than this is none
const int _bounces = 2;
const float _brightest = 2.0f; ///< of a reflected ray: a few brighter ones would be spots
const std::size_t _fewLights = 8; ///< so many are all asked for every point
const float _lampSize = 0.02f; ///< radius of a directional light, as seen from distance 1

/// A little beyond a distance, so that a ray that goes on does not find the same surface.
float beyond(float distance)
{
    return distance + std::fabs(distance) * 4e-6f + std::numeric_limits<float>::min();
}

RTCRay embreeRay(const qxRay &ray, unsigned int mask)
{
    RTCRay result;
    result.org_x = ray.origin[0];
    result.org_y = ray.origin[1];
    result.org_z = ray.origin[2];
    result.dir_x = ray.direction[0];
    result.dir_y = ray.direction[1];
    result.dir_z = ray.direction[2];
    result.tnear = ray.near;
    result.tfar = ray.far;
    result.time = 0;
    result.mask = mask;
    result.id = 0;
    result.flags = 0;
    return result;
}

/// The share of light that is left of a way inside of the body that a surface bounds.
osg::Vec3f leftInside(const qxSurfacePoint &hit, float length)
{
    const std::vector<qxRenderLayer> &layers = hit.instance->surface->layers;
    osg::Vec3f result(1, 1, 1);
    if (layers.empty() || !layers.front().look.isBody)
        return result;
    for (osg::UInt32 i = 0; i < 3; ++i)
        result[i] = std::exp(-layers.front().look.attenuation[i] * length);
    return result;
}

} // namespace

qxTracer::qxTracer(const Scene &scene) : m_scene(scene) {}

qxTracer::RayResult qxTracer::trace(const qxRay &ray, qxSampler &sampler) const
{
    qxRay wide = ray;
    wide.spread.scale(m_scene.rayWidth);
    return radianceAlong(wide, 0, sampler);
}

bool qxTracer::intersect(const qxRay &ray, unsigned int mask, qxSurfacePoint &hit) const
{
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRayHit found;
    found.ray = embreeRay(ray, mask);
    found.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    found.hit.instID[0] = RTC_INVALID_GEOMETRY_ID;
    rtcIntersect1(m_scene.group.scene(), &context, &found);
    if (found.hit.geomID == RTC_INVALID_GEOMETRY_ID)
        return false;
    const qxRenderInstance &instance = m_scene.group.instanceAt(found.hit);
    const qxRenderGeometry &geometry = *instance.geometry;
    hit.instance = &instance;
    hit.place = {found.hit.primID, found.hit.u, found.hit.v};
    hit.distance = found.ray.tfar;
    hit.position = ray.at(hit.distance);
    hit.toEye = -ray.direction;
    hit.flatNormal = m_scene.group.flatNormalAt(found.hit);
    hit.front = hit.flatNormal.dot(hit.toEye) >= 0.0f;
    hit.normal = instance.worldNormal(geometry.normalAt(hit.place));
    if (!(hit.normal.squareLength() > 0.5f))
        hit.normal = hit.flatNormal;
    if (!hit.front) {
        hit.flatNormal = -hit.flatNormal;
        hit.normal = -hit.normal;
    }
    hit.inside = !hit.front;
    // Where a body is cut open, its inner side is seen.
    hit.front = hit.front || m_scene.clipping.isActive();
    hit.colour = geometry.colourAt(hit.place);
    hit.arrive(ray.spread);
    return true;
}

/// Goes through surfaces until one lets nothing through.
qxTracer::RayResult qxTracer::radianceAlong(qxRay ray, int depth, qxSampler &sampler) const
{
    RayResult result;
    result.distance = _infinity;
    qxRenderClipping::Crossing plane = {_infinity, 0.0f, osg::Vec3f()};
    if (depth == 0)
        plane = m_scene.clipping.crossing(ray, m_scene.camera);
    m_scene.clipping.limit(ray);
    float passed = 0.0f; // distance of the last surface
    for (int i = 0; i < _mostSurfaces && result.transmittance > _nothing; ++i) {
        qxSurfacePoint hit;
        const bool left = !m_scene.clipping.hidesScene() && ray.near < ray.far;
        const bool found = left && intersect(ray, _all, hit);
        if (plane.alpha > 0.0f && !(found && hit.distance < plane.distance)) {
            pass(plane, result);
            plane.alpha = 0.0f;
        }
        if (!found)
            return result;
        if (hit.inside && m_scene.mode == HardLight && i > 0)
            result.tint = qxProduct(result.tint, leftInside(hit, hit.distance - passed));
        pass(hit, depth, sampler, result);
        passed = hit.distance;
        ray.near = beyond(hit.distance);
    }
    return result;
}

void qxTracer::pass(const qxRenderClipping::Crossing &plane, RayResult &result) const
{
    result.radiance += plane.light * (plane.alpha * result.transmittance);
    result.colour += plane.light * (plane.alpha * result.transmittance);
    result.transmittance *= 1.0f - plane.alpha;
}

/// The passes of the material, from the one that was drawn last downwards.
void qxTracer::pass(const qxSurfacePoint &hit, int depth, qxSampler &sampler,
                    RayResult &result) const
{
    const std::vector<qxRenderLayer> &layers = hit.instance->surface->layers;
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
        const osg::Vec4f base = hit.base(*layer);
        const float alpha = hit.alpha(*layer, base[3]);
        result.sides |= hit.shows(*layer) ? Front : Back;
        if (alpha <= 0.0f)
            continue;
        const osg::Vec3f colour(base[0], base[1], base[2]);
        const float share = alpha * result.transmittance;
        result.colour += colour * share;
        result.normal += hit.normal * share;
        result.transmittance *= 1.0f - alpha;
        if (layer->unlit || m_scene.mode == Flat) {
            const osg::Vec3f glow = layer->unlit ? osg::Vec3f() : layer->look.emission;
            result.radiance += qxProduct(colour + glow, result.tint) * share;
        } else {
            const qxShading shading(hit.surface(*layer, base), hit.toEye);
            const osg::Vec3f light = shaded(shading, hit, depth, sampler);
            result.radiance += qxProduct(light, result.tint) * share;
            if (m_scene.mode == HardLight && layer->isClear())
                passThrough(shading, share, result);
        }
        if (result.transmittance <= _nothing)
            break;
    }
    if (result.transmittance <= 0.5f)
        result.distance = std::min(result.distance, hit.distance);
}

/// Goes straight on, where more effort would refract.
void qxTracer::passThrough(const qxShading &shading, float share, RayResult &result) const
{
    const osg::Vec3f through = shading.straightThrough() * share;
    const float most = qxPeak(through);
    if (most <= 0.0f)
        return;
    // What goes beside the surface keeps its colour; there is hardly ever both.
    result.tint = qxProduct(result.tint, through * (1.0f / most));
    result.transmittance += most;
}

osg::Vec3f qxTracer::shaded(const qxShading &shading, const qxSurfacePoint &hit, int depth,
                            qxSampler &sampler) const
{
    const osg::Vec3f light = shading.emitted() + direct(hit, shading, depth, sampler);
    if (m_scene.mode == RayTracing && depth < _bounces)
        return light + reflectedScene(hit, shading, depth, sampler);
    const osg::Vec3f through = m_scene.mode == RayTracing ? shading.straightThrough() : osg::Vec3f();
    return light + shading.reflectedSky(m_scene.sky)
        + qxProduct(through, m_scene.sky.light(-hit.toEye));
}

osg::Vec3f qxTracer::direct(const qxSurfacePoint &hit, const qxShading &shading, int depth,
                            qxSampler &sampler) const
{
    const std::vector<qxRenderLight> &lights = m_scene.lights.on;
    osg::Vec3f sum;
    if (m_scene.mode != RayTracing || (depth == 0 && lights.size() <= _fewLights)) {
        for (const qxRenderLight &light : lights)
            sum += shadowed(sampleOf(light, hit, shading), hit, sampler);
        return sum;
    }
    const int asked = depth == 0 ? 2 : 1;
    for (int i = 0; i < asked; ++i)
        sum += shadowed(chosenSample(hit, shading, sampler.next()), hit, sampler)
            * (1.0f / float(asked));
    return sum;
}

/// What a light gives if nothing is in its way.
qxTracer::LightSample qxTracer::sampleOf(const qxRenderLight &light, const qxSurfacePoint &hit,
                                         const qxShading &shading) const
{
    const qxRenderLight::Arrival arrival = light.arrivalAt(hit.position, hit.normal);
    if (qxPeak(arrival.light) <= 0.0f)
        return {osg::Vec3f(), arrival.toLight, arrival.distance, false};
    return {qxProduct(arrival.light, shading.reflected(arrival.toLight)), arrival.toLight,
            arrival.distance, light.shadow};
}

/// One of the lights, those that give more sooner than others, standing for all of them.
qxTracer::LightSample qxTracer::chosenSample(const qxSurfacePoint &hit, const qxShading &shading,
                                             float random) const
{
    LightSample result = {osg::Vec3f(), osg::Vec3f(), 0.0f, false};
    float sum = 0.0f;
    for (const qxRenderLight &light : m_scene.lights.on) {
        const LightSample sample = sampleOf(light, hit, shading);
        const float weight = qxPeak(sample.light);
        if (!(weight > 0.0f))
            continue;
        sum += weight;
        const float chance = weight / sum;
        const bool take = random < chance;
        random = take ? random / chance : (random - chance) / (1.0f - chance);
        if (take)
            result = sample;
    }
    const float weight = qxPeak(result.light);
    result.light *= weight > 0.0f ? sum / weight : 0.0f;
    return result;
}

osg::Vec3f qxTracer::shadowed(const LightSample &sample, const qxSurfacePoint &hit,
                              qxSampler &sampler) const
{
    if (qxPeak(sample.light) <= _nothing || !sample.shadow)
        return sample.light;
    osg::Vec3f direction = sample.toLight;
    if (m_scene.mode == RayTracing) {
        // Towards some place of a lamp that is a disc.
        const osg::Vec2f place = sampler.nextPair();
        const qxFrame frame(direction);
        const float radius = _lampSize * std::sqrt(place[0]);
        const float angle = 6.2831853f * place[1];
        direction = qxUnit(direction + frame.x * (radius * std::cos(angle))
                           + frame.y * (radius * std::sin(angle)));
    }
    return qxProduct(sample.light, transmittance(hit, direction, sample.distance));
}

osg::Vec3f qxTracer::transmittance(const qxSurfacePoint &hit, const osg::Vec3f &direction,
                                   float distance) const
{
    qxRay ray;
    ray.origin = hit.start(direction);
    ray.direction = direction;
    ray.far = distance * 0.9999f;
    m_scene.clipping.limit(ray);
    if (!(ray.near < ray.far))
        return osg::Vec3f(1, 1, 1);
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRay opaque = embreeRay(ray, qxRenderGroup::Opaque);
    rtcOccluded1(m_scene.group.scene(), &context, &opaque);
    if (opaque.tfar < 0.0f)
        return osg::Vec3f();
    osg::Vec3f through(1, 1, 1);
    qxSurfacePoint other;
    for (int i = 0; i < _mostSurfaces && m_scene.group.hasTranslucent(); ++i) {
        if (qxPeak(through) <= _nothing || !intersect(ray, qxRenderGroup::Translucent, other))
            break;
        other.front = true; // shadows fall from both sides
        for (const qxRenderLayer &layer : other.instance->surface->layers)
            through = qxProduct(through, other.passing(layer, other.base(layer)));
        ray.near = beyond(other.distance);
    }
    return through;
}

osg::Vec3f qxTracer::around(const qxRay &ray, qxSampler &sampler) const
{
    if (!m_scene.environment)
        return m_scene.sky.light(ray.direction);
    const RayResult seen = m_scene.environment->trace(ray, sampler);
    return seen.radiance + m_scene.sky.light(ray.direction) * seen.transmittance;
}

osg::Vec3f qxTracer::reflectedScene(const qxSurfacePoint &hit, const qxShading &shading, int depth,
                                    qxSampler &sampler) const
{
    const float choice = sampler.next();
    const qxShading::Bounce bounce = shading.bounce(choice, sampler.nextPair());
    const bool leaves = bounce.direction.dot(hit.flatNormal) > 0.0f;
    if (!(qxPeak(bounce.share) > 0.0f) || leaves == bounce.through)
        return osg::Vec3f();
    const qxRay ray = hit.leaving(bounce);
    const RayResult found = radianceAlong(ray, depth + 1, sampler);
    osg::Vec3f light = found.radiance;
    for (osg::UInt32 i = 0; i < 3 && bounce.through; ++i)
        light[i] *= std::exp(-bounce.attenuation[i] * std::min(found.distance, 1e6f));
    if (found.transmittance > 0.0f)
        light += around(ray, sampler) * found.transmittance;
    if (qxPeak(light) > _brightest)
        light *= _brightest / qxPeak(light);
    return qxProduct(light, bounce.share);
}
