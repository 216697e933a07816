#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

/// The clipping plane of the running host, set by scripts and used by pictures.
///
/// The half of the scene that the normal points to is cut away, with `invert` the other one.
struct qxClipping {
    bool enabled = false; ///< whether anything is cut; without it only the settings are kept
    osg::Pnt3f position = osg::Pnt3f(0, 0, 0); ///< a point on the plane, in world coordinates
    osg::Vec3f normal = osg::Vec3f(0, 1, 0); ///< of any length; a null vector cuts nothing
    bool invert = false; ///< cuts the other half away
    bool hideScene = false; ///< shows plane, grid and contour without the scene

    bool showPlane = true; ///< draws the plane itself
    osg::Color3f planeColor = osg::Color3f(0.2f, 0.3f, 0.4f); ///< sRGB
    bool showGrid = true; ///< draws a grid on the plane
    osg::Color3f gridColor = osg::Color3f(0.63f, 0.82f, 0.89f); ///< sRGB
    bool showContour = true; ///< the line along which the plane cuts surfaces
    osg::Color3f contourColor = osg::Color3f(1, 0.7f, 0); ///< sRGB
    int contourWidth = 1; ///< in pixels

    bool operator==(const qxClipping &other) const; ///< all of it is the same

    /// The one of the running host; a cleared scene has the values above.
    static qxClipping &the();
};
