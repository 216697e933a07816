#pragma once

#include "Animation/qxAnimationClip.h"
#include "Files/Gltf/Common/qxGltfOrigin.h"
#include "Files/Gltf/Common/qxGltfSwitchMaterialState.h"
#include "Files/Gltf/Read/qxGltfMeshes.h"
#include "Files/qxSceneVariant.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSwitchMaterial.h>

/// The scene graph of a file, not yet shown. It is destroyed with this object unless it is shown.
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
    std::vector<qxAnimationClip> clips;
    qxGltfOrigin origin;

    /// Adds everything to the host: below the scene's root, and to its pools.
    void show() const;
};
