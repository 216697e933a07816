#pragma once

#include "qxNodePtr.h"

#include <vector>

/// The lights of the scene: nodes with an osg::UberLight core.
class qxLights {
public:
    /// False for a null node and for one without a light core.
    static bool isLight(const osg::NodePtr &node);
    /// Whether the light is on; false if the node is no light.
    static bool getOn(const osg::NodePtr &node);
    /// Switches the light; does nothing if the node is no light.
    static void setOn(const osg::NodePtr &node, bool on);
    /// All light nodes in scene order, those of the environment last.
    static std::vector<qxNodePtr> getLights();
};
