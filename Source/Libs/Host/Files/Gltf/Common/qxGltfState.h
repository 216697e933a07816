#pragma once

#include "Files/Gltf/Common/qxGltfLights.h"
#include "Files/Gltf/Read/qxGltfScene.h"

#include <optional>
#include <string>
#include <vector>

/// Where a node stands, its pose: as translation, rotation and scale, or as a matrix.
struct qxGltfPose {
    enum Kind { None, Components, Matrix };
    Kind kind = None;
    std::vector<float> numbers; ///< ten or sixteen, as a scene file has them

    bool operator==(const qxGltfPose &o) const { return kind == o.kind && numbers == o.numbers; }
};

/// The named transform states of a node.
struct qxGltfTransformStates {
    std::vector<std::string> names;
    std::vector<float> numbers; ///< ten per state
    int selected = -1;
    bool isShown = false; ///< a transform switch that stands in the pose and not in its choice
};

/// One node as a scene file would have it. Comparing what was loaded with what is there now tells
/// what a save has to write.
struct qxGltfNodeState {
    osg::NodePtr node;
    int index = -1; ///< in the file, -1 when it is not from there
    std::optional<std::string> name;
    bool visible = true;
    qxGltfPose pose;
    std::optional<int> switchChoice;
    std::optional<int> transformChoice;
    std::vector<float> switchTransforms; ///< of a transform switch, ten per transform
    std::optional<int> sharesCoreOf; ///< position in qxGltfState::nodes of the owner of the core
    qxGltfTransformStates transformStates;
    std::optional<qxGltfLight> light;
    bool lightOn = true;
    std::optional<osg::UInt32> overlayLayer; ///< of an overlay
    bool environment = false; ///< whether it is the switch over the environments
    std::vector<osg::UInt32> mesh; ///< ids of the geometry cores
    std::vector<int> hiddenParts; ///< positions in `mesh` of the geometries that are hidden
    std::vector<int> children; ///< positions in qxGltfState::nodes
};

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

/// How messages call a node of the scene graph.
QString qxGltfLabel(const osg::NodePtr &node);
/// The ten numbers of a transform: translation, rotation quaternion x y z w, scale.
std::vector<float> qxGltfNumbers(const osg::Matrix &matrix);
