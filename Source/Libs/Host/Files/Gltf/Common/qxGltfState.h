#pragma once

#include "Files/Gltf/Common/qxGltfNodeState.h"
#include "Files/Gltf/Common/qxGltfOrigin.h"

#include <OpenSG/OSGGeometry.h>

#include <string>
#include <vector>

/// The scene as a scene file would have it: every node once, parents before their children.
struct qxGltfState {
    std::vector<qxGltfNodeState> nodes;
    std::vector<int> roots;
    std::unordered_map<osg::UInt32, osg::GeometryPtr> geometries; ///< all that are shown

    /// Describes these nodes and everything below them; overlays and the environment, which may be
    /// null, stand where they came from, new ones behind the other roots. Throws qxGltfError naming
    /// the node for what a scene file has no form for.
    static qxGltfState of(const std::vector<osg::NodePtr> &roots,
                          const std::vector<osg::NodePtr> &overlays,
                          const osg::NodePtr &environment, const qxGltfOrigin &origin);
    /// The positions of the nodes that a file means by a name when it tells whose core is shared:
    /// the first switch or transform switch of each name, in the order of the file.
    std::unordered_map<std::string, int> owners() const;
};
