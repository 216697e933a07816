#include "Files/Gltf/Read/qxGltfSceneBuilder.h"

#include "Files/Gltf/Read/qxGltfAnimations.h"
#include "Files/Gltf/Read/qxGltfCameras.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfNodes.h"
#include "Files/Gltf/Read/qxGltfScene.h"
#include "Files/Gltf/Read/qxGltfSkins.h"
#include "Files/Gltf/Read/qxGltfSwitchMaterialBuilder.h"

namespace {

void recordParts(qxGltfScene &scene)
{
    for (std::size_t mesh = 0; mesh < scene.meshes.size(); ++mesh) {
        const qxGltfMeshParts &parts = scene.meshes[mesh];
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (parts[i] == osg::NullFC)
                continue;
            scene.origin.geometries[parts[i].get().getFieldContainerId()] = {int(mesh), int(i)};
        }
    }
    for (std::size_t i = 0; i < scene.materials.size(); ++i)
        scene.origin.materials[scene.materials[i].get().getFieldContainerId()] = int(i);
}

} // namespace

void qxGltfBuildScene(qxGltfModel &model, qxGltfScene &scene)
{
    scene.meshes = qxGltfMeshes(model, scene.materials);
    recordParts(scene);
    qxGltfSwitchMaterialBuilder switchMaterials(model, scene);
    switchMaterials.build();
    scene.mapped = switchMaterials.mapped();
    qxGltfNodes nodes(model, scene);
    nodes.build();
    qxGltfSetSkins(model, nodes);
    scene.cameras = qxGltfCameras(model, nodes, scene.origin);
    scene.clips = qxGltfAnimations(model, nodes);
}
