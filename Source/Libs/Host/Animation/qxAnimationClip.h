#pragma once

#include "Animation/qxAnimationCurve.h"
#include "Animation/qxPose.h"

#include <string>

/// An animation of the scene: properties of nodes over time.
struct qxAnimationClip {
    /// What a curve moves.
    struct Channel {
        /// A property of a node; Weights are those of the morph targets of its mesh.
        enum Path { Translation, Rotation, Scale, Weights };
        qxPose::Id node; ///< may be gone meanwhile
        Path path; ///< the property of the node
        qxAnimationCurve curve; ///< its values over time
    };

    /// The time of its last key; 0 without any.
    float duration() const;

    std::string name; ///< maybe empty; several may have the same
    std::vector<Channel> channels; ///< in the order of the file
};

/// A clip at a time.
struct qxClipTime {
    const qxAnimationClip *clip; ///< never null
    float time; ///< in seconds
};

/// The scene at these times; later clips win over earlier ones. What no clip moves of a node stays
/// as the scene graph has it now. Nodes that are gone are left out.
qxPose qxPoseOf(const std::vector<qxClipTime> &clips);
