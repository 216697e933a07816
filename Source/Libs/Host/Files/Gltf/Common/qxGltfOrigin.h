#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string>
#include <unordered_map>
#include <vector>

/// Which parts of the scene graph came from which part of the file, by container id.
struct qxGltfOrigin {
    /// Of a geometry: its mesh, its place in it, and the switch material that it was loaded with.
    struct Part {
        int mesh = -1;
        int primitive = -1;
        osg::UInt32 switchMaterial = 0; ///< 0 for none
    };
    std::unordered_map<osg::UInt32, int> nodes;
    /// Where a node was taken from that moved out of the tree: its place below a node, or among the
    /// roots (-1).
    struct Place {
        int parent = -1;
        int position = 0;
    };
    std::unordered_map<osg::UInt32, int> uppers; ///< unnamed nodes above that of the file
    std::unordered_map<osg::UInt32, Place>
        moved; ///< the topmost nodes of overlays, and the environment
    std::unordered_map<osg::UInt32, Part> geometries;
    std::unordered_map<osg::UInt32, int> materials; ///< -1 for that of primitives without one
    std::string defaultName; ///< of that one
    std::vector<int> viewpoints; ///< the node of each that the file has
    /// The node whose `extras` describe a switch core or a transform-switch core.
    std::unordered_map<osg::UInt32, int> coreOwners;
};
