#pragma once

#include "Render/qxRay.h"
#include "Render/qxRenderGroup.h"

/// A point of a surface that a ray has met.
struct qxSurfacePoint {
    osg::Vec3f position;
    osg::Vec3f normal; ///< smooth, on the side of the eye
    osg::Vec3f flatNormal; ///< of the triangle, on the side of the eye
    osg::Vec3f toEye;
    float distance = 0;
    bool front = true;
    bool inside = false; ///< seen from behind, cut open or not
    osg::Vec4f colour;
    const qxRenderInstance *instance = nullptr;
    qxRenderGeometry::Place place = {0, 0, 0}; ///< in its geometry
    qxRaySpread spread; ///< of the ray, on the surface; null for one without width

    /// Takes over how wide the ray is here. Call it when the rest is known.
    void arrive(const qxRaySpread &from);

    /// Base colour and alpha of a pass of the material.
    osg::Vec4f base(const qxRenderLayer &layer) const;
    /// The share of the light behind the point that the pass hides.
    float alpha(const qxRenderLayer &layer, float baseAlpha) const;
    /// The share of the light behind the point that goes straight on, as for shadows; `base` is
    /// that of the pass.
    osg::Vec3f passing(const qxRenderLayer &layer, const osg::Vec4f &base) const;
    /// What the numbers and the pictures of a pass say here.
    qxShading::Surface surface(const qxRenderLayer &layer) const
    {
        return surface(layer, base(layer));
    }
    /// The same when the base colour is already known.
    qxShading::Surface surface(const qxRenderLayer &layer, const osg::Vec4f &base) const;
    /// Whether the pass has this side. Bodies have both.
    bool shows(const qxRenderLayer &layer) const
    {
        return front || layer.doubleSided || (layer.look.isBody && layer.isClear());
    }
    /// Where a ray may start without meeting the surface again.
    osg::Vec3f start(const osg::Vec3f &direction) const;
    /// From where the ray may go on along itself.
    float beyond() const;
    /// The ray that goes on in the direction of a bounce.
    qxRay leaving(const qxShading::Bounce &bounce) const;

private:
    osg::Vec4f texel(const qxRenderPicture &picture) const;
    void apply(const qxRenderPicture &picture, const qxRenderLayer &layer,
               qxShading::Surface &surface) const;
    qxFrame tangents(osg::UInt32 texCoords) const;
    osg::Vec3f bent(const osg::Vec3f &slopes, const qxRenderPicture &picture, float scale) const;
    osg::Vec3f visible(const osg::Vec3f &normal) const;

    osg::Vec2f m_steps[2]; ///< of the weights in the triangle, along the spread
};
