#pragma once

#include "qxVariant.h"

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

#include <string>

/// The clipping setting of a variant set: what becomes of the clipping plane when the set is
/// applied.
///
/// It is a plain record that is copied as a whole; options and states of the base are not used.
class qxAnalyzerVariant : public qxVariant {
public:
    /// What `clipState` may say; any other number changes nothing.
    enum ClipState { NoChange = 0, Enable = 1, Disable = 2, SetPlane = 3 };

    /// See ClipState. SetPlane puts the plane alone in its place; Enable also sets how it is shown,
    /// and switches clipping on; Disable switches it off.
    int clipState = NoChange;
    osg::Pnt3f clipPlanePosition{0, 0, 0}; ///< a point on the plane, in world units
    osg::Vec3f clipPlaneNormal{0, 1, 0}; ///< of any length; what it points to is cut away
    bool clipPlaneShow = true; ///< the plane itself is drawn
    osg::Color3f clipPlaneColor{0.2f, 0.3f, 0.4f}; ///< sRGB, each part from 0 to 1
    bool clipPlaneInvert = false; ///< cuts the other half away
    bool clipPlaneHideScene = false; ///< shows plane, grid and contour alone
    bool clipGridShow = true; ///< a grid is drawn on the plane
    osg::Color3f clipGridColor{0.63f, 0.82f, 0.89f}; ///< as clipPlaneColor
    bool clipContourShow = true; ///< the line where the plane cuts surfaces is drawn
    osg::Color3f clipContourColor{1, 0.7f, 0}; ///< as clipPlaneColor
    int clipContourWidth = 1; ///< in pixels

    /// Applies the setting by a script of the application, which connected sessions get as well
    /// when the host sends them selections. Nothing when nothing changes.
    void execute();
    /// The script that applies it; empty when nothing changes.
    std::string script() const;
};
