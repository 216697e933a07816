#pragma once

#include "Files/Gltf/Common/qxGltfLights.h"

#include <OpenSG/OSGNode.h>

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
