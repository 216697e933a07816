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

} // namespace

qxTracer::qxTracer(const Scene &scene) : m_scene(scene) {}

qxTracer::RayResult qxTracer::trace(const qxRay &ray, qxSampler &sampler) const
{
    return radianceAlong(ray, 0, sampler);
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
    // Where a body is cut open, its inner side is seen.
    hit.front = hit.front || m_scene.clipping.isActive();
    hit.texCoords = geometry.texCoordsAt(hit.place);
    hit.colour = geometry.colourAt(hit.place);
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
        if (depth == 0)
            hit.width = widthAt(hit);
        pass(hit, depth, sampler, result);
        ray.near = beyond(hit.distance);
    }
    return result;
}

/// How much of a surface a ray of the eye stands for; seen at a flat angle it is longer than wide.
float qxTracer::widthAt(const qxSurfacePoint &hit) const
{
    const float slope = std::max(hit.flatNormal.dot(hit.toEye), 0.1f);
    return m_scene.camera.pixelSize(hit.distance) * m_scene.rayWidth / std::sqrt(slope);
}

void qxTracer::pass(const qxRenderClipping::Crossing &plane, RayResult &result) const
{
    result.plain += plane.light * (plane.alpha * result.transmittance);
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
        const osg::Vec3f light = shaded(hit, *layer, colour, depth, sampler) * share;
        if (layer->unlit || m_scene.mode == Flat) {
            result.plain += light;
        } else {
            result.radiance += light;
            result.lit += share;
        }
        result.colour += colour * share;
        result.normal += hit.normal * share;
        result.transmittance *= 1.0f - alpha;
        if (result.transmittance <= _nothing)
            break;
    }
    if (result.transmittance <= 0.5f)
        result.distance = std::min(result.distance, hit.distance);
}

osg::Vec3f qxTracer::shaded(const qxSurfacePoint &hit, const qxRenderLayer &layer,
                            const osg::Vec3f &colour, int depth, qxSampler &sampler) const
{
    if (layer.unlit)
        return colour;
    if (m_scene.mode == Flat)
        return colour + layer.emission;
    // Light that a mirror throws on other surfaces would be single spots.
    const float roughness = depth > 0 ? std::max(layer.roughness, 0.3f) : layer.roughness;
    const qxShading shading({colour, layer.metallic, roughness}, hit.normal, hit.toEye);
    const osg::Vec3f light = layer.emission + direct(hit, shading, depth, sampler);
    if (m_scene.mode != RayTracing || depth >= _bounces)
        return light + reflectedSky(hit, shading);
    return light + reflectedScene(hit, shading, depth, sampler);
}

/// Without asking around: the strongest light of the sky alone casts a shadow.
osg::Vec3f qxTracer::reflectedSky(const qxSurfacePoint &hit, const qxShading &shading) const
{
    const qxEnvironmentLight::Key key = m_scene.sky.key();
    const osg::Vec3f arriving = key.light * std::max(key.direction.dot(hit.normal), 0.0f);
    if (m_scene.mode != HardLight || qxPeak(arriving) <= _nothing)
        return shading.reflectedSky(m_scene.sky);
    const float hidden = 1.0f - transmittance(hit, key.direction, _infinity);
    return shading.reflectedSky(m_scene.sky, arriving * hidden);
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
    return sample.light * transmittance(hit, direction, sample.distance);
}

float qxTracer::transmittance(const qxSurfacePoint &hit, const osg::Vec3f &direction,
                              float distance) const
{
    qxRay ray;
    ray.origin = hit.start(direction);
    ray.direction = direction;
    ray.far = distance * 0.9999f;
    m_scene.clipping.limit(ray);
    if (!(ray.near < ray.far))
        return 1.0f;
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRay opaque = embreeRay(ray, qxRenderGroup::Opaque);
    rtcOccluded1(m_scene.group.scene(), &context, &opaque);
    if (opaque.tfar < 0.0f)
        return 0.0f;
    float through = 1.0f;
    qxSurfacePoint other;
    for (int i = 0; i < _mostSurfaces && m_scene.group.hasTranslucent(); ++i) {
        if (through <= _nothing || !intersect(ray, qxRenderGroup::Translucent, other))
            break;
        other.front = true; // shadows fall from both sides
        for (const qxRenderLayer &layer : other.instance->surface->layers)
            through *= 1.0f - other.alpha(layer, other.base(layer)[3]);
        ray.near = beyond(other.distance);
    }
    return through;
}

osg::Vec3f qxTracer::around(const qxRay &ray, qxSampler &sampler) const
{
    if (!m_scene.environment)
        return m_scene.sky.light(ray.direction);
    const RayResult seen = m_scene.environment->trace(ray, sampler);
    return seen.radiance + seen.plain + m_scene.sky.light(ray.direction) * seen.transmittance;
}

osg::Vec3f qxTracer::reflectedScene(const qxSurfacePoint &hit, const qxShading &shading, int depth,
                                    qxSampler &sampler) const
{
    const float choice = sampler.next();
    const qxShading::Bounce bounce = shading.bounce(choice, sampler.nextPair());
    if (!(qxPeak(bounce.share) > 0.0f) || bounce.direction.dot(hit.flatNormal) <= 0.0f)
        return osg::Vec3f();
    qxRay ray;
    ray.origin = hit.start(bounce.direction);
    ray.direction = bounce.direction;
    const RayResult found = radianceAlong(ray, depth + 1, sampler);
    osg::Vec3f light = found.radiance + found.plain;
    if (found.transmittance > 0.0f)
        light += around(ray, sampler) * found.transmittance;
    if (qxPeak(light) > _brightest)
        light *= _brightest / qxPeak(light);
    return qxProduct(light, bounce.share);
}
