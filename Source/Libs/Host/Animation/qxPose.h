#pragma once

#include <OpenSG/OSGMatrix.h>

#include <unordered_map>
#include <vector>

/// What playing clips make of the scene: pictures show it, the scene graph does not hold it. Empty
/// while nothing plays: everything stands as the scene graph says.
struct qxPose {
    /// The one of the running host.
    static qxPose &the();

    bool isEmpty() const { return matrices.empty() && weights.empty(); } ///< nothing is moved

    typedef osg::UInt32 Id; ///< of a node
    std::unordered_map<Id, osg::Matrix> matrices; ///< relative to the parent, in place of its own
    std::unordered_map<Id, std::vector<float>> weights; ///< of the morph targets of its mesh
};
