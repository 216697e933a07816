#include "Render/qxSurfacePoint.h"

#include <algorithm>
#include <cmath>
#include <limits>

osg::Vec4f qxSurfacePoint::texel(const qxRenderLayer &layer) const
{
    if (!layer.texture)
        return osg::Vec4f(1, 1, 1, 1);
    const qxSurface::TextureMatrix &m = layer.textureMatrix;
    const osg::Vec2f inImage(m[0] * texCoords[0] + m[1] * texCoords[1] + m[2],
                             m[3] * texCoords[0] + m[4] * texCoords[1] + m[5]);
    if (!(width > 0.0f))
        return layer.texture->at(inImage, layer.wrap);
    const float scale = std::sqrt(std::fabs(m[0] * m[4] - m[1] * m[3]));
    const float perLength = instance->geometry->texCoordsPerLength(place, instance->toWorld);
    return layer.texture->at(inImage, layer.wrap, width * perLength * scale);
}

osg::Vec4f qxSurfacePoint::base(const qxRenderLayer &layer) const
{
    const osg::Vec4f texture = texel(layer);
    const osg::Vec3f light(texture[0], texture[1], texture[2]);
    const osg::Vec3f tint(colour[0], colour[1], colour[2]);
    osg::Vec3f result = qxProduct(layer.base, tint);
    float alpha = layer.alpha * colour[3];
    if (layer.textureUse == qxRenderLayer::Decal) {
        result = qxMixed(result, light, texture[3]);
    } else {
        result = layer.textureUse == qxRenderLayer::Replace && layer.texture
            ? light
            : qxProduct(result, light);
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
    return osg::Vec3f(1, 1, 1) * (1.0f - alpha(layer, base[3]));
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
