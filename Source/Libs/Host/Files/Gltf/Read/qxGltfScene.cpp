#include "Files/Gltf/Read/qxGltfScene.h"

#include "Animation/qxAnimationPlayer.h"
#include "Scene/qxScene.h"
#include "qxAnimManager.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

namespace {

void addChildren(const osg::NodePtr &top, const std::vector<osg::NodeRefPtr> &nodes)
{
    const osg::CPEditor edit(top, osg::Node::ChildrenFieldMask);
    for (const osg::NodeRefPtr &node : nodes)
        top->addChild(node.get());
}

} // namespace

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
    std::vector<std::string> names;
    for (const qxAnimationClip &clip : clips)
        names.push_back(clip.name);
    qxAnimManager::the()->setClips(names);
    qxAnimationPlayer::the().setClips(clips);
}
