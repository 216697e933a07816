#pragma once

#include "Render/qxRay.h"
#include "Render/qxRenderMath.h"
#include "qxUberCameraPool.h"

class qxDigest;

/// The camera of a picture of a certain size.
class qxRenderCamera {
public:
    /// A camera without field of view and height, or with an invalid matrix, is replaced by one
    /// that shows the whole `scene` from the front, above and one side.
    qxRenderCamera(const qxUberCamera &camera, const qxBox &scene, int width, int height);

    /// All that its rays depend on, apart from the scene that it was fitted to.
    void addTo(qxDigest &digest) const;
    /// The same camera as the main view would have it.
    qxUberCamera plain() const;
    /// Through a place of the picture, in pixels from its lower left corner.
    qxRay ray(float x, float y) const;
    /// Where a point is in the picture, and how far along the ray through there. False for points
    /// in front of the near plane.
    bool project(const osg::Vec3f &point, osg::Vec2f &place, float &distance) const;
    /// The size of a pixel at a distance along its ray, in world units.
    float pixelSize(float distance) const;

    bool isParallel() const { return m_parallel; }
    /// The size of a pixel at distance 1 in front of the eye, or, parallel, at any, in world units.
    float pixelStep() const { return 2.0f * m_halfHeight / m_height; }
    /// Of the picture, in pixels.
    osg::Vec2f middle() const { return osg::Vec2f(m_width, m_height) * 0.5f; }
    const osg::Vec3f &eye() const { return m_eye; }
    const osg::Vec3f &right() const { return m_right; }
    const osg::Vec3f &up() const { return m_up; }
    const osg::Vec3f &back() const { return m_back; }

private:
    void fit(const qxBox &scene, float aspect);

    bool m_isFitted = false; ///< to the scene
    bool m_parallel = false;
    osg::Vec3f m_eye;
    osg::Vec3f m_right = osg::Vec3f(1, 0, 0);
    osg::Vec3f m_up = osg::Vec3f(0, 1, 0);
    osg::Vec3f m_back = osg::Vec3f(0, 0, 1);
    float m_halfHeight = 1; ///< of the picture: at distance 1, or, parallel, in world units
    float m_near = 0;
    float m_far = 0;
    float m_width;
    float m_height;
};
