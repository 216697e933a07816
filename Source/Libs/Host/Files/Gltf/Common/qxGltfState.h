#pragma once

#include "Files/Gltf/Common/qxGltfNodeState.h"
#include "Files/Gltf/Common/qxGltfOrigin.h"

#include <OpenSG/OSGGeometry.h>

#include <string>
#include <vector>

/// The scene as a scene file describes it: every node once, parents before their children.
struct qxGltfState {
    std::vector<qxGltfNodeState> nodes;
    std::vector<int> roots;
    std::unordered_map<osg::UInt32, osg::GeometryPtr> geometries; ///< all that are shown

    /// Describes these nodes and everything below them. Overlays and the environment, which may be
    /// null, are put at their original places, new ones after the other roots. Throws qxGltfError
    /// with the name of a node that cannot be written.
    static qxGltfState of(const std::vector<osg::NodePtr> &roots,
                          const std::vector<osg::NodePtr> &overlays,
                          const osg::NodePtr &environment, const qxGltfOrigin &origin);
    /// The positions of the nodes whose cores can be shared by name: the first switch or transform
    /// switch of each name, in the order of the file.
    std::unordered_map<std::string, int> owners() const;
};
