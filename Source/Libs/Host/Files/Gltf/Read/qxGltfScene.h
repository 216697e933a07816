#pragma once

#include "Files/Gltf/Read/qxGltfMeshes.h"
#include "Files/Gltf/Write/qxGltfSwitchMaterialState.h"
#include "Files/qxSceneVariant.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <string>
#include <unordered_map>

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

/// The scene graph made of a file, not yet shown. It ends with the object unless it is shown.
struct qxGltfScene {
    std::vector<qxGltfMaterialRef> materials;
    std::vector<osg::SwitchMaterialRefPtr> switches;
    std::vector<qxGltfMaterialRef> pool; ///< those that the scene's pool gets, in its order
    qxGltfSwitchMaterialUse
        mapped; ///< how the switch materials are as long as the file need not list them
    std::vector<qxSceneVariant> variants;
    std::vector<qxGltfMeshParts> meshes;
    std::vector<osg::NodeRefPtr> roots;
    std::vector<osg::NodeRefPtr> overlays;
    osg::NodeRefPtr environment; ///< null when there is none
    std::vector<qxUberCamera> cameras;
    std::vector<std::string> clips;
    qxGltfOrigin origin;

    /// Makes the materials with their pictures. What is left out is a warning in the model.
    void buildMaterials(qxGltfModel &model);
    /// Makes all the rest, of these materials. Throws qxGltfError; warnings are as above.
    void build(qxGltfModel &model);
    /// Hands everything to the host: below the scene's root, into its pools.
    void show() const;
};
