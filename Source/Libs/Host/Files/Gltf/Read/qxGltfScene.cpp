#include "Files/Gltf/Read/qxGltfScene.h"

#include "Files/Gltf/Common/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfCameras.h"
#include "Files/Gltf/Read/qxGltfNodes.h"
#include "Files/Gltf/Read/qxGltfSwitchMaterialBuilder.h"
#include "Scene/qxScene.h"
#include "qxAnimManager.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

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

/// The names of the animations in their order, empty for those without.
std::vector<std::string> clipsOf(const qxJson &document)
{
    std::vector<std::string> clips;
    for (const qxJson &animation : qxGltfSection(document, "animations")) {
        const qxJson &name = qxGltfMember(animation, "name");
        clips.push_back(name.is_string() ? name.get<std::string>() : std::string());
    }
    return clips;
}

void addChildren(const osg::NodePtr &top, const std::vector<osg::NodeRefPtr> &nodes)
{
    const osg::CPEditor edit(top, osg::Node::ChildrenFieldMask);
    for (const osg::NodeRefPtr &node : nodes)
        top->addChild(node.get());
}

} // namespace

void qxGltfScene::buildMaterials(qxGltfModel &model)
{
    materials = qxGltfMaterials(model);
}

void qxGltfScene::build(qxGltfModel &model)
{
    meshes = qxGltfMeshes(model, materials);
    recordParts(*this);
    qxGltfSwitchMaterialBuilder switchMaterials(model, *this);
    switchMaterials.build();
    mapped = switchMaterials.mapped();
    qxGltfNodes nodes(model, *this);
    nodes.build();
    cameras = qxGltfCameras(model, nodes, origin);
    clips = clipsOf(model.document.json);
}

void qxGltfScene::show() const
{
    const osg::MaterialPoolPtr materialPool = qxScenegraph::getMaterialPool();
    {
        const osg::CPEditor edit(materialPool, osg::MaterialPool::MaterialsFieldMask);
        for (const qxGltfMaterialRef &material : pool)
            materialPool->add(material.get());
    }
    addChildren(qxScenegraph::getRoot(), roots);
    addChildren(qxOverlays::getPoolRoot(), overlays);
    if (environment != osg::NullFC)
        qxScene::current()->setEnvironment(environment.get());
    for (const qxUberCamera &camera : cameras)
        qxUberCameraPool::the()->add(camera);
    qxAnimManager::the()->setClips(clips);
}
