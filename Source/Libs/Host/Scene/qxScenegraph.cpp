#include "qxScenegraph.h"

#include "Scene/qxScene.h"
#include "qxController.h"
#include "qxOpenSGUtils.h"

#include <unordered_set>

namespace {

void show(const osg::NodePtr &node)
{
    if (node->getTravMask() == qxShownMask)
        return;
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(qxShownMask);
}

} // namespace

osg::NodePtr qxScenegraph::getRoot()
{
    const qxScene *scene = qxScene::current();
    return scene ? scene->root() : osg::NodePtr();
}

qxNodePtr qxScenegraph::getRootNode()
{
    return getRoot();
}

osg::NodePtr qxOpenSGUtils::getRoot()
{
    return qxScenegraph::getRoot();
}

void qxScenegraph::showNodes(const std::vector<qxNodePtr> &nodes)
{
    std::unordered_set<osg::UInt32> done; // the nodes often share their ancestors
    for (osg::NodePtr node : nodes) {
        while (node != osg::NullFC && done.insert(node.getFieldContainerId()).second) {
            show(node);
            node = node->getParent();
        }
    }
}

void qxScenegraph::update(int mode)
{
    qxController::updateRender(mode == 1);
}

osg::MaterialPoolPtr qxScenegraph::getMaterialPool()
{
    const qxScene *scene = qxScene::current();
    return scene ? scene->materialPool() : osg::MaterialPoolPtr();
}
