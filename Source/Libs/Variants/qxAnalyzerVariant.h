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

    int clipState = NoChange;
    osg::Pnt3f clipPlanePosition{0, 0, 0}; ///< a point on the plane, in world units
    osg::Vec3f clipPlaneNormal{0, 1, 0};
    bool clipPlaneShow = true; ///< the plane itself is drawn
    osg::Color3f clipPlaneColor{0.2f, 0.3f, 0.4f};
    bool clipPlaneInvert = false;
    bool clipPlaneHideScene = false;
    bool clipGridShow = true;
    osg::Color3f clipGridColor{0.63f, 0.82f, 0.89f};
    bool clipContourShow = true;
    osg::Color3f clipContourColor{1, 0.7f, 0};
    int clipContourWidth = 1;

    /// Applies the setting through the host's script service.
    void execute();
    /// The script that applies it; empty when nothing changes.
    std::string script() const;
};
