#pragma once

#include "Files/qxGltfMeshes.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGNodePtr.h>

#include <string>
#include <unordered_map>

/// Which parts of the scene graph came from which part of the file, by container id.
struct qxGltfOrigin {
    /// Of a geometry: its mesh, its place in it and its material.
    struct Part {
        int mesh = -1;
        int primitive = -1;
        int material = -1;
    };
    std::unordered_map<osg::UInt32, int> nodes;
    std::unordered_map<osg::UInt32, int> uppers; ///< nodes that carry the transform of a switch
    std::unordered_map<osg::UInt32, Part> geometries;
    std::unordered_map<osg::UInt32, int> materials;
    /// The node whose `extras` describe a switch core or a transform-switch core.
    std::unordered_map<osg::UInt32, int> coreOwners;
};

/// The scene graph made of a file, not yet shown. It ends with the object unless it is shown.
struct qxGltfScene {
    std::vector<qxGltfMaterialRef> materials;
    std::vector<qxGltfMeshParts> meshes;
    std::vector<osg::NodeRefPtr> roots;
    std::vector<qxUberCamera> cameras;
    std::vector<std::string> clips;
    qxGltfOrigin origin;

    /// Makes everything. Throws qxGltfError; what is left out is a warning in the model.
    static qxGltfScene build(qxGltfModel &model);
    /// Hands everything to the host: below the scene's root, into its pools.
    void show() const;
};
