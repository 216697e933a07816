#pragma once

#include "Render/qxRenderGroup.h"

/// A point of a surface that a ray has met.
struct qxSurfacePoint {
    osg::Vec3f position;
    osg::Vec3f normal; ///< smooth, on the side of the eye
    osg::Vec3f flatNormal; ///< of the triangle, on the side of the eye
    osg::Vec3f toEye;
    float distance = 0;
    bool front = true;
    osg::Vec2f texCoords;
    osg::Vec4f colour;
    const qxRenderInstance *instance = nullptr;
    qxRenderGeometry::Place place = {0, 0, 0}; ///< in its geometry
    float width = 0; ///< of the ray on the surface; 0 for points

    /// Base colour and alpha of a pass of the material.
    osg::Vec4f base(const qxRenderLayer &layer) const;
    /// The share of the light behind the point that the pass hides.
    float alpha(const qxRenderLayer &layer, float baseAlpha) const;
    /// The share of light that goes straight through the pass.
    osg::Vec3f passing(const qxRenderLayer &layer, const osg::Vec4f &base) const;
    /// Whether the pass has this side.
    bool shows(const qxRenderLayer &layer) const { return front || layer.doubleSided; }
    /// Where a ray may start without meeting the surface again.
    osg::Vec3f start(const osg::Vec3f &direction) const;
    /// From where the ray may go on along itself.
    float beyond() const;

private:
    osg::Vec4f texel(const qxRenderLayer &layer) const;
};
