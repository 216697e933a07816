#pragma once

#include "qxNodePtr.h"

#include <vector>

/// The overlays: parts of the picture in front of the scene, in a separate tree.
///
/// Each child of the pool's root that shows an overlay has an osg::OverlayCore.
class qxOverlays {
public:
    /// The root of the overlay tree; never null while the host runs.
    static osg::NodePtr getPoolRoot();
    /// The first node of that name in the overlay tree, or null.
    static qxNodePtr findOverlay(const char *name);
    /// All nodes of that name in the overlay tree, depth first.
    static std::vector<qxNodePtr> findOverlays(const char *name);
};
