#pragma once

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMatrix.h>

#include <functional>

/// A node that shows a geometry.
struct qxShownPart {
    osg::UInt32 node; ///< its id
    osg::GeometryPtr core;
    osg::MaterialPtr material; ///< that of the outermost material group not ignored, else its own
    osg::Matrix toWorld;
    osg::UInt32 layer; ///< of the overlay that it belongs to; 0 without
};

/// Receives the visible parts in scene order.
struct qxShownListener {
    std::function<void(const qxShownPart &)> part;
    /// Also called for lights that are off.
    std::function<void(const osg::LightPtr &, const osg::Matrix &toWorld)> light;
};

/// Visits all visible parts below `root`. A node with traversal mask 0 hides everything below it, a
/// switch all children but the chosen one. Nodes stand where playing clips have them (qxPose).
void qxWalkShown(const osg::NodePtr &root, const qxShownListener &listener);
