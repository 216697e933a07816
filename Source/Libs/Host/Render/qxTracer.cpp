#include "Render/qxTracer.h"

#include "Render/qxRenderCamera.h"
#include "Render/qxShading.h"

#include <limits>

namespace {

const float _infinity = std::numeric_limits<float>::infinity();

const int _mostSurfaces = 64; ///< that a ray passes through
const float _nothing = 1.0f / 1024.0f; ///< less light than this is none

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
    const bool isBody = !layers.empty() && layers.front().look.isBody && layers.front().isClear();
    return isBody ? qxLeftAfter(layers.front().look.attenuation, length) : osg::Vec3f(1, 1, 1);
}

} // namespace

void qxTracer::Gathered::add(const Gathered &other, const osg::Vec3f &weight, float share)
{
    light += qxProduct(other.light, weight);
    colour += other.colour * share;
    normal += other.normal * share;
}

bool qxTracer::intersect(const qxRay &ray, qxSurfacePoint &hit) const
{
    return intersect(ray, m_scene.group.scene(), hit);
}

bool qxTracer::intersect(const qxRay &ray, RTCScene scene, qxSurfacePoint &hit) const
{
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRayHit found;
    found.ray = embreeRay(ray, ~0u);
    found.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    found.hit.instID[0] = RTC_INVALID_GEOMETRY_ID;
    rtcIntersect1(scene, &context, &found);
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
qxTracer::RayResult qxTracer::trace(qxRay ray, qxSampler &sampler) const
{
    RayResult result;
    result.distance = _infinity;
    ray.spread.scale(m_scene.rayWidth);
    qxRenderClipping::Crossing plane = m_scene.clipping.crossing(ray, m_scene.camera);
    m_scene.clipping.limit(ray);
    float before = _infinity; // distance of the last surface
    for (int i = 0; i < _mostSurfaces && result.transmittance > _nothing; ++i) {
        qxSurfacePoint hit;
        const bool left = !m_scene.clipping.hidesScene() && ray.near < ray.far;
        const bool found = left && intersect(ray, hit);
        if (plane.alpha > 0.0f && !(found && hit.distance < plane.distance)) {
            pass(plane, result);
            plane.alpha = 0.0f;
        }
        if (!found)
            return result;
        if (hit.inside && hit.distance > before)
            result.tint = qxProduct(result.tint, leftInside(hit, hit.distance - before));
        pass(hit, sampler, result);
        before = hit.distance;
        ray.near = hit.beyond();
    }
    return result;
}

void qxTracer::pass(const qxRenderClipping::Crossing &plane, RayResult &result) const
{
    result.plain += qxProduct(plane.light, result.tint) * (plane.alpha * result.transmittance);
    result.scattered.colour += plane.light * (plane.alpha * result.transmittance);
    result.transmittance *= 1.0f - plane.alpha;
}

bool qxTracer::isLit(const qxRenderLayer &layer) const
{
    return m_scene.isLit && !layer.unlit;
}

/// The passes of the material, from the one that was drawn last downwards.
void qxTracer::pass(const qxSurfacePoint &hit, qxSampler &sampler, RayResult &result) const
{
    const std::vector<qxRenderLayer> &layers = hit.instance->surface->layers;
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
        const osg::Vec4f base = hit.base(*layer);
        const float alpha = hit.alpha(*layer, base[3]);
        result.sides |= hit.shows(*layer) ? Front : Back;
        if (alpha <= 0.0f)
            continue;
        const float share = alpha * result.transmittance;
        const Seen one = seen(hit, *layer, base, share, sampler);
        const osg::Vec3f weight = result.tint * share;
        result.radiance += qxProduct(one.radiance, weight);
        result.sharp.add(one.sharp, weight, share);
        result.scattered.add(one.scattered, weight, share);
        result.plain += qxProduct(one.plain, weight);
        result.lit += isLit(*layer) ? share : 0.0f;
        result.transmittance *= 1.0f - alpha;
        goThrough(one.through * share, result);
        if (result.transmittance <= _nothing)
            break;
    }
    if (result.transmittance <= 0.5f)
        result.distance = std::min(result.distance, hit.distance);
}

/// What passes beside a surface and what passes through it get one colour: there is hardly ever
/// both.
void qxTracer::goThrough(const osg::Vec3f &through, RayResult &result) const
{
    const float most = qxPeak(through);
    if (!(most > 0.0f))
        return;
    result.tint = qxProduct(result.tint, through * (1.0f / most));
    result.transmittance += most;
}

/// In hard light.
qxTracer::Seen qxTracer::seen(const qxSurfacePoint &hit, const qxRenderLayer &layer,
                              const osg::Vec4f &base, float, qxSampler &) const
{
    const osg::Vec3f none;
    const osg::Vec3f colour(base[0], base[1], base[2]);
    const Gathered surface = {none, colour, hit.normal};
    if (layer.unlit)
        return {none, {}, surface, colour, none};
    if (!m_scene.isLit) {
        const bool glows = qxPeak(layer.look.emission) > 0.0f;
        const osg::Vec3f emission = glows ? hit.surface(layer, base).emission : none;
        return {none, {}, surface, colour + emission, none};
    }
    const qxShading shading(hit.surface(layer, base), hit.toEye);
    const osg::Vec3f light = shading.emitted() + direct(hit, shading) + reflectedSky(hit, shading);
    return {light, {}, surface, none, shading.straightThrough()};
}

/// Without asking around: the strongest light of the sky alone casts a shadow.
osg::Vec3f qxTracer::reflectedSky(const qxSurfacePoint &hit, const qxShading &shading) const
{
    const qxEnvironmentLight::Key key = m_scene.sky.key();
    const osg::Vec3f arriving = key.light * std::max(key.direction.dot(hit.normal), 0.0f);
    if (qxPeak(arriving) <= _nothing)
        return shading.reflectedSky(m_scene.sky);
    const osg::Vec3f hidden = osg::Vec3f(1, 1, 1) - transmittance(hit, key.direction, _infinity);
    return shading.reflectedSky(m_scene.sky, qxProduct(arriving, hidden));
}

osg::Vec3f qxTracer::direct(const qxSurfacePoint &hit, const qxShading &shading) const
{
    osg::Vec3f sum;
    for (const qxRenderLight &light : m_scene.lights.on) {
        const osg::Vec3f side = shading.letsThrough() ? osg::Vec3f() : hit.normal;
        const qxRenderLight::Arrival arrival = light.arrivalAt(hit.position, side);
        if (qxPeak(arrival.light) <= 0.0f)
            continue;
        const osg::Vec3f open = qxProduct(arrival.light, shading.reflected(arrival.toLight));
        const bool isInWay = qxPeak(open) > _nothing && light.shadow;
        sum +=
            isInWay ? qxProduct(open, transmittance(hit, arrival.toLight, arrival.distance)) : open;
    }
    return sum;
}

osg::Vec3f qxTracer::transmittance(const qxSurfacePoint &hit, const osg::Vec3f &direction,
                                   float distance) const
{
    const osg::Vec3f all(1, 1, 1);
    qxRay ray;
    ray.origin = hit.start(direction);
    ray.direction = direction;
    ray.far = distance * 0.9999f;
    m_scene.clipping.limit(ray);
    if (!(ray.near < ray.far))
        return all;
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRay opaque = embreeRay(ray, qxRenderGroup::Opaque);
    rtcOccluded1(m_scene.group.scene(), &context, &opaque);
    if (opaque.tfar < 0.0f)
        return osg::Vec3f();
    osg::Vec3f through = all;
    qxSurfacePoint other;
    for (int i = 0; i < _mostSurfaces && m_scene.group.translucent(); ++i) {
        if (qxPeak(through) <= _nothing || !intersect(ray, m_scene.group.translucent(), other))
            break;
        other.front = true; // shadows fall from both sides
        for (const qxRenderLayer &layer : other.instance->surface->layers)
            through = qxProduct(through, other.passing(layer, other.base(layer)));
        ray.near = other.beyond();
    }
    return through;
}

osg::Vec3f qxTracer::around(const qxRay &ray, qxSampler &sampler) const
{
    if (!m_scene.environment)
        return m_scene.sky.light(ray.direction);
    const RayResult seen = m_scene.environment->trace(ray, sampler);
    return seen.plain + m_scene.sky.light(ray.direction) * seen.transmittance;
}
