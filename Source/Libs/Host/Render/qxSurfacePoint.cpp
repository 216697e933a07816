#include "Render/qxSurfacePoint.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const float _flattest = 0.03f; ///< cosine of a ray that meets a surface; its footprint has an end
/// How wide rays are after a bounce, by the root of the solid angle that a direction stands for.
const float _widening = 0.15f;

osg::Vec3f first3(const osg::Vec4f &v)
{
    return osg::Vec3f(v[0], v[1], v[2]);
}

osg::Vec3f widened(const osg::Vec3f &step, const osg::Vec3f &other, float width)
{
    const float length = step.length();
    if (length >= width)
        return step;
    return length > 1e-12f ? step * (width / length) : other * width;
}

} // namespace

void qxSurfacePoint::arrive(const qxRaySpread &from)
{
    spread = qxRaySpread();
    m_steps[0] = m_steps[1] = osg::Vec2f();
    if (from.isNull())
        return;
    const float cosine = std::max(flatNormal.dot(toEye), _flattest);
    for (int i = 0; i < 2; ++i) {
        const osg::Vec3f beside = from.origin[i] + from.direction[i] * distance;
        spread.origin[i] = beside + toEye * (-beside.dot(flatNormal) / cosine);
        spread.direction[i] = from.direction[i];
    }
    if (instance->surface->hasPictures())
        findSteps(m_steps);
}

void qxSurfacePoint::findSteps(osg::Vec2f (&steps)[2]) const
{
    osg::Vec3f sides[2];
    for (std::size_t i = 0; i < 2; ++i)
        instance->toWorld.multMatrixVec(instance->geometry->side(place.triangle, i), sides[i]);
    // Each step on the plane of the sides in shares of these.
    const osg::Vec3f across = sides[0].cross(sides[1]);
    const float square = across.squareLength();
    const float share = square > 0.0f ? 1.0f / square : 0.0f;
    const osg::Vec3f along[2] = {sides[1].cross(across) * share, across.cross(sides[0]) * share};
    for (int i = 0; i < 2; ++i)
        steps[i] = osg::Vec2f(spread.origin[i].dot(along[0]), spread.origin[i].dot(along[1]));
}

osg::Vec4f qxSurfacePoint::texel(const qxRenderPicture &picture) const
{
    const qxSurfacePicture::Matrix &m = picture.matrix;
    const auto moved = [&m](const osg::Vec2f &v) {
        return osg::Vec2f(m[0] * v[0] + m[1] * v[1], m[3] * v[0] + m[4] * v[1]);
    };
    const qxRenderGeometry &geometry = *instance->geometry;
    qxRenderTexture::Footprint footprint;
    for (std::size_t i = 0; i < 2; ++i)
        footprint[i] = moved(geometry.texCoordsStep(place.triangle, picture.texCoords, m_steps[i]));
    const osg::Vec2f at = moved(geometry.texCoordsAt(place, picture.texCoords));
    return picture.texture->at(at + osg::Vec2f(m[2], m[5]), picture.wrap, footprint);
}

osg::Vec4f qxSurfacePoint::base(const qxRenderLayer &layer) const
{
    const osg::Vec3f tint = first3(colour);
    osg::Vec3f result = qxProduct(layer.look.base, tint);
    float alpha = layer.alpha * colour[3];
    if (!layer.picture.texture)
        return osg::Vec4f(result[0], result[1], result[2], alpha);
    const osg::Vec4f texture = texel(layer.picture);
    const osg::Vec3f light = first3(texture);
    if (layer.textureUse == qxRenderLayer::Decal) {
        result = qxMixed(result, light, texture[3]);
    } else {
        result = layer.textureUse == qxRenderLayer::Replace ? light : qxProduct(result, light);
        alpha *= texture[3];
    }
    return osg::Vec4f(result[0], result[1], result[2], alpha);
}

float qxSurfacePoint::alpha(const qxRenderLayer &layer, float baseAlpha) const
{
    if (!shows(layer))
        return 0.0f;
    if (layer.alphaMode == qxSurface::Mask)
        return baseAlpha >= layer.alphaCutoff ? 1.0f : 0.0f;
    return layer.alphaMode == qxSurface::Blend ? std::clamp(baseAlpha, 0.0f, 1.0f) : 1.0f;
}

osg::Vec3f qxSurfacePoint::passing(const qxRenderLayer &layer, const osg::Vec4f &base) const
{
    const float hidden = alpha(layer, base[3]);
    const osg::Vec3f beside = osg::Vec3f(1, 1, 1) * (1.0f - hidden);
    if (!layer.isClear() || layer.unlit || hidden <= 0.0f)
        return beside;
    const qxShading shading(surface(layer, base), toEye);
    return beside + shading.straightThrough() * hidden;
}

qxShading::Surface qxSurfacePoint::surface(const qxRenderLayer &layer, const osg::Vec4f &base) const
{
    qxShading::Surface result = layer.look;
    result.base = first3(base);
    result.normal = normal;
    result.coatNormal = normal;
    result.isInside = inside;
    for (const qxRenderPicture &picture : layer.pictures)
        apply(picture, layer, result);
    if (result.anisotropy > 0.0f) {
        const qxFrame frame = tangents(0);
        const float angle = layer.grainAngle;
        const osg::Vec3f grain = result.grain;
        result.grain = frame.x * (grain[0] * std::cos(angle) - grain[1] * std::sin(angle))
            + frame.y * (grain[0] * std::sin(angle) + grain[1] * std::cos(angle));
    }
    result.normal = visible(result.normal);
    if (result.coat > 0.0f)
        result.coatNormal = visible(result.coatNormal);
    return result;
}

/// Which channel says what: the glTF 2.0 specification, 3.9, and the extensions' tables.
/// A list, not a procedure.
void qxSurfacePoint::apply(const qxRenderPicture &picture, const qxRenderLayer &layer,
                           qxShading::Surface &surface) const
{
    const osg::Vec4f value = texel(picture);
    const osg::Vec3f light = first3(value);
    switch (picture.role) {
    case qxSurface::MetallicRoughness:
        surface.roughness *= value[1];
        surface.metallic *= value[2];
        break;
    case qxSurface::Normal:
        surface.normal = bent(light, picture, layer.normalScale);
        break;
    case qxSurface::Occlusion:
        surface.occlusion = 1.0f - layer.occlusionStrength * (1.0f - value[0]);
        break;
    case qxSurface::Emissive:
        surface.emission = qxProduct(surface.emission, light);
        break;
    case qxSurface::Specular:
        surface.specular *= value[3];
        break;
    case qxSurface::SpecularColour:
        surface.specularColour = qxProduct(surface.specularColour, light);
        break;
    case qxSurface::Clearcoat:
        surface.coat *= value[0];
        break;
    case qxSurface::ClearcoatRoughness:
        surface.coatRoughness *= value[1];
        break;
    case qxSurface::ClearcoatNormal:
        surface.coatNormal = bent(light, picture, layer.coatNormalScale);
        break;
    case qxSurface::SheenColour:
        surface.sheen = qxProduct(surface.sheen, light);
        break;
    case qxSurface::SheenRoughness:
        surface.sheenRoughness *= value[3];
        break;
    case qxSurface::Transmission:
        surface.transmission *= value[0];
        break;
    case qxSurface::Iridescence:
        surface.iridescence *= value[0];
        break;
    case qxSurface::IridescenceThickness:
        surface.filmThickness = qxMixed(layer.thinnestFilm, surface.filmThickness, value[1]);
        break;
    case qxSurface::Anisotropy:
        surface.grain = osg::Vec3f(value[0] * 2.0f - 1.0f, value[1] * 2.0f - 1.0f, 0);
        surface.anisotropy *= value[2];
        break;
    case qxSurface::DiffuseTransmission:
        surface.diffuseTransmission *= value[3];
        break;
    case qxSurface::DiffuseTransmissionColour:
        surface.diffuseTransmissionColour = qxProduct(surface.diffuseTransmissionColour, light);
        break;
    case qxSurface::BaseColour: // see base()
    case qxSurface::PictureRoles:
        break;
    }
}

/// Along the pictures' axes to the right and upwards, and the normal, on the side of the eye. The
/// geometry's own tangents or, without, those of the texture coordinates in the triangle.
qxFrame qxSurfacePoint::tangents(osg::UInt32 texCoords) const
{
    const qxRenderGeometry &geometry = *instance->geometry;
    qxFrame frame(normal);
    const float side = inside ? -1.0f : 1.0f;
    const osg::Vec4f known = geometry.tangentAt(place);
    osg::Vec3f along;
    float turn = (known[3] < 0.0f) != instance->isMirrored ? -side : side;
    if (known[3] != 0.0f) {
        instance->toWorld.multMatrixVec(first3(known), along);
    } else {
        osg::Vec3f sides[2];
        for (std::size_t i = 0; i < 2; ++i)
            instance->toWorld.multMatrixVec(geometry.side(place.triangle, i), sides[i]);
        const osg::Vec2f a = geometry.texCoordsStep(place.triangle, texCoords, osg::Vec2f(1, 0));
        const osg::Vec2f b = geometry.texCoordsStep(place.triangle, texCoords, osg::Vec2f(0, 1));
        const float area = a[0] * b[1] - a[1] * b[0];
        const osg::Vec3f across = (sides[0] * b[1] - sides[1] * a[1]) * area;
        const osg::Vec3f upwards = (sides[1] * a[0] - sides[0] * b[0]) * area;
        along = across;
        turn = normal.cross(across).dot(upwards) < 0.0f ? -1.0f : 1.0f;
    }
    along = along - normal * normal.dot(along);
    if (!(along.squareLength() > 0.0f) || !qxIsFinite(along))
        return frame;
    // The normal may have been turned round: then right and left are, too.
    frame.x = qxUnit(along) * side;
    frame.y = normal.cross(frame.x) * turn;
    return frame;
}

/// The normal that a picture gives, bent from the smooth one.
osg::Vec3f qxSurfacePoint::bent(const osg::Vec3f &slopes, const qxRenderPicture &picture,
                                float scale) const
{
    const qxFrame frame = tangents(picture.texCoords);
    const osg::Vec3f local((slopes[0] * 2.0f - 1.0f) * scale, (slopes[1] * 2.0f - 1.0f) * scale,
                           slopes[2] * 2.0f - 1.0f);
    const osg::Vec3f result = qxUnit(frame.toWorld(local));
    return result.squareLength() > 0.5f && qxIsFinite(result) ? result : normal;
}

/// The normal, bent as little as is needed for a mirror to reflect the eye's ray away from the
/// triangle: Keller et al. 2017, "The Iray Light Transport Simulation and Rendering System", A.3.
osg::Vec3f qxSurfacePoint::visible(const osg::Vec3f &wanted) const
{
    const float least = 0.01f;
    const osg::Vec3f mirrored = qxMirrored(-toEye, wanted);
    const float height = mirrored.dot(flatNormal);
    if (height >= least || !(flatNormal.dot(toEye) > least))
        return wanted;
    const float slope = std::max(wanted.dot(flatNormal), 0.01f);
    return qxUnit(toEye + qxUnit(mirrored + wanted * ((least - height) / slope)));
}

osg::Vec3f qxSurfacePoint::start(const osg::Vec3f &direction) const
{
    const float largest = std::max(std::max(std::fabs(position[0]), std::fabs(position[1])),
                                   std::max(std::fabs(position[2]), distance));
    const float side = flatNormal.dot(direction) < 0.0f ? -1.0f : 1.0f;
    return position + flatNormal * (side * largest * 2e-5f);
}

float qxSurfacePoint::beyond() const
{
    return distance + std::fabs(distance) * 4e-6f + std::numeric_limits<float>::min();
}

/// As a mirror at least, whose normal turns along the surface; wider where the bounce is one of
/// many that would have done.
qxRay qxSurfacePoint::leaving(const qxShading::Bounce &bounce) const
{
    qxRay ray;
    ray.origin = start(bounce.direction);
    ray.direction = bounce.direction;
    if (spread.isNull())
        return ray;
    const float width = _widening / std::sqrt(std::max(bounce.density, 1e-6f));
    const qxFrame frame(bounce.direction);
    const osg::Vec3f others[2] = {frame.x, frame.y};
    osg::Vec2f steps[2];
    findSteps(steps);
    for (int i = 0; i < 2; ++i) {
        osg::Vec3f step = spread.direction[i];
        if (!bounce.through) {
            const osg::Vec3f turned =
                instance->worldNormalStep(instance->geometry->normalStep(place.triangle, steps[i]),
                                          instance->geometry->normalAt(place));
            const osg::Vec3f bend = inside ? -turned : turned;
            step = step
                - (normal * (step.dot(normal) - toEye.dot(bend)) - bend * toEye.dot(normal)) * 2.0f;
        }
        ray.spread.origin[i] = spread.origin[i];
        ray.spread.direction[i] = widened(step, others[i], width);
    }
    return ray;
}
