#pragma once

#include "Render/qxRay.h"
#include "Render/qxRenderMath.h"
#include "Scene/qxClipping.h"

class qxRenderCamera;

/// The clipping plane as a picture shows it.
class qxRenderClipping {
public:
    /// The shown plane covers the box.
    qxRenderClipping(const qxClipping &settings, const qxBox &scene);

    const qxClipping &settings() const { return m_settings; }
    /// False if it is off or has no direction: then it neither cuts nor is visible.
    bool isActive() const { return m_active; }
    bool hidesScene() const { return m_active && m_settings.hideScene; }
    bool hasContour() const
    {
        return m_active && m_settings.showContour && m_settings.contourWidth > 0;
    }

    /// Above 0 on the side that is cut away, in world units.
    float height(const osg::Vec3f &point) const { return m_normal.dot(point - m_point); }
    const osg::Vec3f &normal() const { return m_normal; }
    /// Limits the ray to the part that is not cut away; `near` is behind `far` if none is left.
    void limit(qxRay &ray) const;

    /// Where a ray meets the shown plane.
    struct Crossing {
        float distance; ///< infinite when it does not
        float alpha;
        osg::Vec3f light;
    };
    Crossing crossing(const qxRay &ray, const qxRenderCamera &camera) const;

private:
    float gridCover(const qxRay &ray, float distance, float pixel) const;

    qxClipping m_settings;
    bool m_active;
    osg::Vec3f m_point;
    osg::Vec3f m_normal; ///< towards the side that is cut away, of length 1
    osg::Vec3f m_centre; ///< of the shown square
    float m_halfSize;
    qxFrame m_frame;
};
