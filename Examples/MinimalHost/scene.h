#pragma once

#include "qxUberCameraPool.h"

#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGNode.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// The only scene of this host: a sailing boat, seen from above.
struct Scene {
    /// The poses of a node by name, and the one that was selected last.
    struct Poses {
        std::vector<std::pair<std::string, osg::Matrix>> all;
        int selected = -1;
    };

    osg::NodePtr root;
    osg::NodePtr overlays;
    osg::MaterialPoolPtr materials;
    std::map<osg::UInt32, Poses> poses; ///< by the id of the node
    qxUberCamera camera; ///< of the only view, which looks straight down

    static Scene &the();
    /// Builds it as it is delivered, its viewpoints as well.
    void build();
    /// Destroys it, after the module has forgotten its variants.
    void close();
};
