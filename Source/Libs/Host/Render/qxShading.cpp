#include "Render/qxShading.h"

#include "Light/qxEnvironmentLight.h"
#include "Render/qxThinFilm.h"

namespace {

const float _sharp = 0.25f; ///< roughness of what shows its surroundings

const osg::Vec3f _white(1, 1, 1);

/// Smoother surfaces would show punctual lights as highlights smaller than any pixel.
const float _smoothest = 0.04f;

float squared(float x)
{
    return x * x;
}

float rough(float roughness)
{
    return std::max(roughness, _smoothest);
}

/// What Schlick's term adds at grazing angles.
float edgeShare(float cosine)
{
    const float rest = 1.0f - std::clamp(cosine, 0.0f, 1.0f);
    return squared(squared(rest)) * rest;
}

float reflectance(float ior)
{
    return ior > 0.0f ? squared((1.0f - ior) / (1.0f + ior)) : 1.0f;
}

osg::Vec3f clampedToOne(const osg::Vec3f &light)
{
    return osg::Vec3f(std::min(light[0], 1.0f), std::min(light[1], 1.0f), std::min(light[2], 1.0f));
}

/// On the side of the surface, though it may just be behind a normal that is bent.
osg::Vec3f eyeIn(const qxFrame &frame, const osg::Vec3f &toEye)
{
    const osg::Vec3f eye = frame.toLocal(toEye);
    return eye[2] >= 1e-4f ? eye : qxUnit(osg::Vec3f(eye[0], eye[1], 1e-4f));
}

osg::Vec3f behind(const osg::Vec3f &direction)
{
    return osg::Vec3f(direction[0], direction[1], -direction[2]);
}

osg::Vec3f mattDirection(const osg::Vec2f &place)
{
    const float radius = std::sqrt(place[0]);
    const float angle = 2.0f * qxPi * place[1];
    return osg::Vec3f(radius * std::cos(angle), radius * std::sin(angle),
                      std::sqrt(std::max(0.0f, 1.0f - place[0])));
}

/// The squared roughness along the grain or across it (KHR_materials_anisotropy).
float alphaOf(float roughness, float anisotropy)
{
    return qxMixed(squared(roughness), 1.0f, squared(anisotropy));
}

/// The one that loses about as much light as that along the grain and that across it.
float meanRoughness(float roughness, float anisotropy)
{
    return anisotropy > 0.0f
        ? std::sqrt(qxMixed(squared(roughness), alphaOf(roughness, anisotropy), 0.42f))
        : roughness;
}

} // namespace

bool qxShading::hasSharpCoat(const Surface &surface)
{
    return surface.coat > 0.0f && surface.coatRoughness < _sharp;
}

bool qxShading::hasSharpMirror(const Surface &surface)
{
    return surface.metallic <= 0.5f && surface.roughness < _sharp && surface.specular > 0.0f;
}

qxShading::qxShading(const Surface &surface, const osg::Vec3f &toEye, Part part)
    : m_surface(surface),
      m_showsMirror(part == Whole || (part == Sharp) == hasSharpMirror(surface)),
      m_showsCoat(part == Whole || (part == Sharp) == hasSharpCoat(surface)),
      m_showsRest(part != Sharp), m_frame(surface.normal), m_roughness(rough(surface.roughness)),
      m_mirrors(alphaOf(m_roughness, surface.anisotropy), squared(m_roughness)),
      m_albedo(meanRoughness(m_roughness, surface.anisotropy)),
      m_coatFrame(surface.coat > 0.0f ? qxFrame(surface.coatNormal) : m_frame),
      m_coatMirrors(squared(rough(surface.coatRoughness)), squared(rough(surface.coatRoughness)))
{
    if (surface.anisotropy > 0.0f)
        setGrain();
    m_eye = eyeIn(m_frame, toEye);
    m_coatEye = surface.coat > 0.0f ? eyeIn(m_coatFrame, toEye) : m_eye;
    m_eyeAlbedo = m_albedo.at(m_eye[2]);
    if (surface.isBody) {
        const float ior = std::max(surface.ior, 1.01f); // or mirrors would have no direction
        m_refraction = surface.isInside ? ior : 1.0f / ior;
    }
    setBase(setLayers());
    setCoatAndSheen();
}

void qxShading::setGrain()
{
    const osg::Vec3f &normal = m_surface.normal;
    const osg::Vec3f along = m_surface.grain - normal * normal.dot(m_surface.grain);
    if (!(along.squareLength() > 1e-12f))
        return;
    m_frame.x = qxUnit(along);
    m_frame.y = normal.cross(m_frame.x);
}

/// Appendix B.2 and KHR_materials_specular, "Implementation"; KHR_materials_ior gives the index.
qxShading::Layer qxShading::setLayers()
{
    const osg::Vec3f normal = clampedToOne(m_surface.specularColour * reflectance(m_surface.ior));
    m_dielectric = {normal * m_surface.specular, _white * m_surface.specular, osg::Vec3f()};
    Layer metal = {clampedToOne(m_surface.base), _white, osg::Vec3f()};
    if (m_surface.iridescence > 0.0f) {
        for (Layer *layer : {&m_dielectric, &metal}) {
            // KHR_materials_iridescence, at the angle of the eye.
            const osg::Vec3f film =
                qxThinFilm(m_eye[2], m_surface.filmIor, m_surface.filmThickness, layer->normal);
            layer->normal = qxMixed(layer->normal, film, m_surface.iridescence);
            layer->edge = qxMixed(layer->edge, film, m_surface.iridescence);
        }
    }
    m_layer = {qxMixed(m_dielectric.normal, metal.normal, m_surface.metallic),
               qxMixed(m_dielectric.edge, metal.edge, m_surface.metallic), osg::Vec3f()};
    return metal;
}

/// The share of the light that single mirrors do not reflect which several do.
osg::Vec3f qxShading::repeatedBy(const Layer &layer, const qxAlbedo::Split &mean)
{
    osg::Vec3f result;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const float once = layer.normal[i] + (layer.edge[i] - layer.normal[i]) / 21.0f;
        result[i] = squared(once) * mean.all() / (1.0f - once * (1.0f - mean.all()));
    }
    return result;
}

/// Light that the mirrors throw on each other, and the matt surface below them, so that nothing is
/// lost or gained: Kulla and Conty 2017, "Revisiting Physically Based Shading at Imageworks". In
/// appendix B.2.2 the matt surface gets what a single mirror lets through, which gains light at
/// grazing angles.
void qxShading::setBase(const Layer &metal)
{
    const qxAlbedo::Split mean = m_albedo.mean();
    const float lost = std::max(1.0f - mean.all(), 1e-3f);
    m_dielectric.repeated = repeatedBy(m_dielectric, mean);
    m_layer.repeated = qxMixed(m_dielectric.repeated, repeatedBy(metal, mean), m_surface.metallic);
    m_repeatedMean = lost;
    const float repeatedEye = std::max(0.0f, 1.0f - m_eyeAlbedo.all());
    m_repeated = m_layer.repeated * (repeatedEye / (lost * qxPi));
    m_mattMean = std::max(passed(mean), 1e-3f);
    const float share = (1.0f - m_surface.metallic) * passed(m_eyeAlbedo) / (m_mattMean * qxPi);
    m_matt = m_surface.base * (share * (1.0f - m_surface.transmission));
    if (m_surface.transmission > 0.0f || m_surface.diffuseTransmission > 0.0f)
        setThrough(_white * (share * (1.0f - m_surface.transmission)), repeatedEye);
}

/// KHR_materials_transmission and KHR_materials_diffuse_transmission share what the mirrors leave.
void qxShading::setThrough(const osg::Vec3f &solid, float repeatedEye)
{
    m_clear = m_surface.transmission * (1.0f - m_surface.metallic);
    m_matt *= 1.0f - m_surface.diffuseTransmission;
    m_mattThrough =
        qxProduct(m_surface.diffuseTransmissionColour, solid) * m_surface.diffuseTransmission;
    if (!m_surface.isBody) {
        const float passing = m_clear * throughBase(1.0f);
        m_repeatedThrough = m_surface.base * (passing * repeatedEye / (m_repeatedMean * qxPi));
    }
}

/// The layering of KHR_materials_clearcoat and of KHR_materials_sheen ("Albedo-scaling technique").
void qxShading::setCoatAndSheen()
{
    if (m_surface.coat > 0.0f) {
        m_coatShare = m_surface.coat * (0.04f + 0.96f * edgeShare(m_coatEye[2]));
        m_coatRest = 1.0f - m_coatShare;
    }
    m_sheenPeak = std::min(qxPeak(m_surface.sheen), 1.0f);
}

const qxShading::Chances &qxShading::chances() const
{
    if (!m_hasChances)
        m_chances = newChances();
    m_hasChances = true;
    return m_chances;
}

qxShading::Chances qxShading::newChances() const
{
    Chances result;
    const float rest = m_coatRest * sheenRest(m_eye[2]);
    const osg::Vec3f mirrors =
        m_layer.normal * m_eyeAlbedo.ofNormal + m_layer.edge * m_eyeAlbedo.ofEdge;
    const float mirror = qxPeak(fresnel(m_layer, denseCosine(m_eye[2])));
    result[Mirror] = std::max(qxPeak(mirrors), mirror * m_eyeAlbedo.all()) * rest;
    result[Matt] = (qxPeak(m_matt) * m_mattMean + qxPeak(m_repeated) * m_repeatedMean) * qxPi * rest
        + m_sheenPeak * m_coatRest;
    result[Coat] = m_coatShare;
    // Mirrors that are turned otherwise let light through that the surface itself would reflect.
    const float through = std::max(1.0f - mirror, 0.5f * squared(m_roughness));
    result[Through] = m_clear * through * qxPeak(m_surface.base) * rest;
    result[MattThrough] =
        (qxPeak(m_mattThrough) * m_mattMean + qxPeak(m_repeatedThrough) * m_repeatedMean) * qxPi
        * rest;
    result[Mirror] *= m_showsMirror ? 1.0f : 0.0f;
    result[Coat] *= m_showsCoat ? 1.0f : 0.0f;
    for (const Lobe lobe : {Matt, Through, MattThrough})
        result[lobe] *= m_showsRest ? 1.0f : 0.0f;
    float sum = 0.0f;
    for (float &chance : result)
        sum += chance;
    if (!(sum > 0.0f))
        return Chances();
    // What seems to give little may give much in some direction, and sharp reflections are seen,
    // while soft light is also found by asking for it.
    float total = 0.0f;
    for (int lobe = 0; lobe < Lobes; ++lobe) {
        // Inside of glass, reflections are as faint as they are.
        const bool isSharp = (lobe == Coat && m_surface.coatRoughness < _sharp)
            || (lobe == Mirror && m_roughness < _sharp && !m_surface.isInside);
        const float share = result[std::size_t(lobe)] / sum;
        result[std::size_t(lobe)] = std::max(share, std::min(isSharp ? 0.3f : 0.1f, 10.0f * share));
        total += result[std::size_t(lobe)];
    }
    for (float &chance : result)
        chance /= total;
    return result;
}

/// Of the angle on the side where light travels faster: the one that Schlick's term is about; 0 for
/// total reflection (KHR_materials_volume, "Implementation").
float qxShading::denseCosine(float cosine) const
{
    if (m_refraction <= 1.0f)
        return cosine;
    const float square = 1.0f - squared(m_refraction) * (1.0f - squared(cosine));
    return square > 0.0f ? std::sqrt(square) : 0.0f;
}

osg::Vec3f qxShading::fresnel(const Layer &layer, float cosine) const
{
    // Total reflection spares nothing, whatever the edge says.
    if (m_refraction > 1.0f && cosine <= 0.0f)
        return _white;
    return layer.normal + (layer.edge - layer.normal) * edgeShare(cosine);
}

/// The share of light that a mirror of that cosine to the eye does not reflect.
float qxShading::throughBase(float mirrorCosine) const
{
    return std::max(0.0f, 1.0f - qxPeak(fresnel(m_dielectric, denseCosine(mirrorCosine))));
}

/// The share of light that the mirrors let through to what is below them.
float qxShading::passed(const qxAlbedo::Split &albedo) const
{
    const float mirrored = qxPeak(m_dielectric.normal) * albedo.ofNormal
        + qxPeak(m_dielectric.edge) * albedo.ofEdge
        + qxPeak(m_dielectric.repeated) * (1.0f - albedo.all());
    return std::max(0.0f, 1.0f - mirrored);
}

float qxShading::sheenRest(float cosine) const
{
    return m_sheenPeak > 0.0f
        ? 1.0f - m_sheenPeak * qxAlbedo::ofSheen(cosine, m_surface.sheenRoughness)
        : 1.0f;
}

/// Mirrors and what is matt below them.
osg::Vec3f qxShading::baseReflected(const osg::Vec3f &light) const
{
    osg::Vec3f sum;
    if (m_showsMirror) {
        const osg::Vec3f half = qxUnit(light + m_eye);
        const float shine = m_mirrors.distribution(half) * m_mirrors.visibility(light, m_eye);
        sum = fresnel(m_layer, denseCosine(half.dot(m_eye))) * shine;
    }
    if (m_showsRest) {
        const qxAlbedo::Split albedo = m_albedo.at(light[2]);
        sum += m_matt * passed(albedo) + m_repeated * std::max(0.0f, 1.0f - albedo.all());
    }
    return sum;
}

/// Light from behind: KHR_materials_transmission for thin walls, KHR_materials_volume for bodies.
osg::Vec3f qxShading::baseTransmitted(const osg::Vec3f &light) const
{
    const qxAlbedo::Split albedo = m_albedo.at(-light[2]);
    const osg::Vec3f sum =
        m_mattThrough * passed(albedo) + m_repeatedThrough * std::max(0.0f, 1.0f - albedo.all());
    if (!(m_clear > 0.0f))
        return sum;
    const osg::Vec3f mirror =
        m_surface.isBody ? refractionMirror(light) : qxUnit(behind(light) + m_eye);
    const float share = m_surface.isBody
        ? refracted(light, mirror)
        : m_mirrors.distribution(mirror) * m_mirrors.visibility(behind(light), m_eye);
    return sum + m_surface.base * (m_clear * throughBase(mirror.dot(m_eye)) * share);
}

osg::Vec3f qxShading::coatReflected(const osg::Vec3f &toLight) const
{
    const osg::Vec3f light = m_coatFrame.toLocal(toLight);
    if (light[2] <= 0.0f)
        return osg::Vec3f();
    const osg::Vec3f half = qxUnit(light + m_coatEye);
    return _white
        * (m_coatShare * m_coatMirrors.distribution(half)
           * m_coatMirrors.visibility(light, m_coatEye) * light[2]);
}

/// The normal of the mirror that refracts light from behind to the eye.
osg::Vec3f qxShading::refractionMirror(const osg::Vec3f &light) const
{
    const osg::Vec3f sum = qxUnit(m_eye * m_refraction + light);
    return sum[2] < 0.0f ? -sum : sum;
}

/// Walter et al. 2007, "Microfacet Models for Refraction through Rough Surfaces", equation 21.
float qxShading::refracted(const osg::Vec3f &light, const osg::Vec3f &mirror) const
{
    const float eye = mirror.dot(m_eye);
    const float beyond = mirror.dot(light);
    if (eye <= 0.0f || beyond >= 0.0f)
        return 0.0f;
    const float root = m_refraction * eye + beyond;
    const float seen = 4.0f * m_mirrors.visibility(behind(light), m_eye);
    return -beyond * eye * seen * m_mirrors.distribution(mirror) / std::max(root * root, 1e-12f);
}

osg::Vec3f qxShading::reflected(const osg::Vec3f &toLight) const
{
    const osg::Vec3f light = m_frame.toLocal(toLight);
    osg::Vec3f sum;
    if (light[2] > 0.0f) {
        sum = baseReflected(light) * light[2];
        if (m_sheenPeak > 0.0f) {
            const float half = qxUnit(light + m_eye)[2];
            const float fibres =
                qxAlbedo::sheen(light[2], m_eye[2], half, m_surface.sheenRoughness);
            sum *= std::min(sheenRest(light[2]), sheenRest(m_eye[2]));
            sum += m_surface.sheen * (m_showsRest ? fibres * light[2] : 0.0f);
        }
    } else if (m_showsRest && letsThrough()) {
        sum = baseTransmitted(light) * (-light[2] * sheenRest(m_eye[2]));
    }
    if (m_coatShare > 0.0f)
        sum = sum * m_coatRest + (m_showsCoat ? coatReflected(toLight) : osg::Vec3f());
    return sum;
}

osg::Vec3f qxShading::reflectedSky(const qxEnvironmentLight &sky, const osg::Vec3f &hidden) const
{
    const osg::Vec3f scattered = qxNotNegative(sky.scattered(m_frame.z) - hidden);
    const osg::Vec3f &normal = m_frame.z;
    const osg::Vec3f toEye = m_frame.toWorld(m_eye);
    const osg::Vec3f mirrors = m_layer.normal * m_eyeAlbedo.ofNormal
        + m_layer.edge * m_eyeAlbedo.ofEdge + m_repeated * (qxPi * m_repeatedMean);
    osg::Vec3f light = qxProduct(mirrors, sky.mirrored(qxMirrored(-toEye, normal), m_roughness))
        + qxProduct(m_matt * (qxPi * m_mattMean), scattered);
    if (m_surface.diffuseTransmission > 0.0f)
        light += qxProduct(m_mattThrough * (qxPi * m_mattMean), sky.scattered(-normal));
    if (m_sheenPeak > 0.0f) {
        const float fibres = qxAlbedo::ofSheen(m_eye[2], m_surface.sheenRoughness);
        light =
            light * (1.0f - m_sheenPeak * fibres) + qxProduct(m_surface.sheen * fibres, scattered);
    }
    if (m_coatShare > 0.0f) {
        const osg::Vec3f eye = m_coatFrame.toWorld(m_coatEye);
        const osg::Vec3f mirrored = qxMirrored(-eye, m_coatFrame.z);
        light = light * m_coatRest
            + sky.mirrored(mirrored, rough(m_surface.coatRoughness)) * m_coatShare;
    }
    return light * m_surface.occlusion;
}

osg::Vec3f qxShading::straightThrough() const
{
    if (!(m_clear > 0.0f))
        return osg::Vec3f();
    // Nothing is reflected totally where nothing is refracted.
    const osg::Vec3f mirrored =
        m_dielectric.normal + (m_dielectric.edge - m_dielectric.normal) * edgeShare(m_eye[2]);
    const float left = std::max(0.0f, 1.0f - qxPeak(mirrored));
    return m_surface.base * (m_clear * left * sheenRest(m_eye[2]) * m_coatRest);
}

osg::Vec3f qxShading::mirrorDirection(const osg::Vec2f &place) const
{
    const osg::Vec3f light = qxMirrored(-m_eye, m_mirrors.seenMirror(m_eye, place));
    return light[2] > 0.0f ? m_frame.toWorld(light) : osg::Vec3f();
}

/// Null when it would lead to the wrong side.
osg::Vec3f qxShading::direction(float choice, const osg::Vec2f &place) const
{
    std::size_t lobe = 0;
    while (lobe + 1 < Lobes && choice >= chances()[lobe])
        choice -= chances()[lobe++];
    switch (lobe) {
    case Mirror:
        return mirrorDirection(place);
    case Matt:
        return m_frame.toWorld(mattDirection(place));
    case Coat:
        return m_coatFrame.toWorld(
            qxMirrored(-m_coatEye, m_coatMirrors.seenMirror(m_coatEye, place)));
    case Through:
        return throughDirection(place);
    default:
        return m_frame.toWorld(behind(mattDirection(place)));
    }
}

osg::Vec3f qxShading::throughDirection(const osg::Vec2f &place) const
{
    const osg::Vec3f mirror = m_mirrors.seenMirror(m_eye, place);
    osg::Vec3f light = behind(qxMirrored(-m_eye, mirror));
    if (m_surface.isBody) {
        const float cosine = mirror.dot(m_eye);
        const float square = 1.0f - squared(m_refraction) * (1.0f - squared(cosine));
        if (square <= 0.0f)
            return osg::Vec3f();
        light = qxUnit(mirror * (m_refraction * cosine - std::sqrt(square)) - m_eye * m_refraction);
    }
    return light[2] < 0.0f ? m_frame.toWorld(light) : osg::Vec3f();
}

float qxShading::throughDensity(const osg::Vec3f &light) const
{
    if (!m_surface.isBody) {
        const osg::Vec3f mirror = qxUnit(behind(light) + m_eye);
        return m_mirrors.density(mirror, m_eye) / (4.0f * std::max(mirror.dot(m_eye), 1e-6f));
    }
    const osg::Vec3f mirror = refractionMirror(light);
    const float beyond = mirror.dot(light);
    if (mirror.dot(m_eye) <= 0.0f || beyond >= 0.0f)
        return 0.0f;
    const float root = m_refraction * mirror.dot(m_eye) + beyond;
    return m_mirrors.density(mirror, m_eye) * -beyond / std::max(root * root, 1e-12f);
}

qxShading::Bounce qxShading::bounce(float choice, const osg::Vec2f &place) const
{
    Bounce bounce;
    bounce.direction = direction(choice, place);
    if (bounce.direction.squareLength() > 0.0f)
        bounce.density = density(bounce.direction);
    if (bounce.density > 0.0f)
        bounce.share = reflected(bounce.direction) * (1.0f / bounce.density);
    bounce.through = m_frame.z.dot(bounce.direction) < 0.0f;
    if (bounce.through && m_surface.isBody && !m_surface.isInside)
        bounce.attenuation = m_surface.attenuation;
    return bounce;
}

float qxShading::density(const osg::Vec3f &toLight) const
{
    const osg::Vec3f light = m_frame.toLocal(toLight);
    const Chances &chances = this->chances();
    float sum = 0.0f;
    if (light[2] > 0.0f) {
        const osg::Vec3f half = qxUnit(light + m_eye);
        sum = chances[Matt] * light[2] / qxPi;
        if (chances[Mirror] > 0.0f)
            sum += chances[Mirror] * m_mirrors.density(half, m_eye)
                / (4.0f * std::max(half.dot(m_eye), 1e-6f));
    } else {
        sum = chances[MattThrough] * -light[2] / qxPi;
        if (chances[Through] > 0.0f)
            sum += chances[Through] * throughDensity(light);
    }
    if (chances[Coat] > 0.0f) {
        const osg::Vec3f above = m_coatFrame.toLocal(toLight);
        const osg::Vec3f half = qxUnit(above + m_coatEye);
        if (above[2] > 0.0f)
            sum += chances[Coat] * m_coatMirrors.density(half, m_coatEye)
                / (4.0f * std::max(half.dot(m_coatEye), 1e-6f));
    }
    return sum;
}
