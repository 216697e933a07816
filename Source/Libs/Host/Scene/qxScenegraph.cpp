#include "qxScenegraph.h"

#include "Scene/qxNameIndex.h"
#include "Scene/qxNodeName.h"
#include "Scene/qxScene.h"
#include "qxController.h"
#include "qxNodeWalk.h"
#include "qxOpenSGUtils.h"
#include "qxOverlays.h"

#include <memory>
#include <unordered_set>

namespace {

const osg::UInt32 shown = 0xFFFFFFFF;

std::unique_ptr<qxFoundNames> &findCache()
{
    static std::unique_ptr<qxFoundNames> cache;
    return cache;
}

std::vector<osg::NodePtr> overlays()
{
    const osg::NodePtr root = qxOverlays::getPoolRoot();
    return root == osg::NullFC ? std::vector<osg::NodePtr>() : root->getMFChildren()->getValues();
}

void show(const osg::NodePtr &node)
{
    if (node->getTravMask() == shown)
        return;
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(shown);
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

qxNodePtr qxScenegraph::findNode(const char *name)
{
    qxNodePtr found;
    if (!name || !*name)
        return found;
    if (findCache())
        return findCache()->scene.first(name);
    qxWalkScene([&](const osg::NodePtr &node) {
        if (!qxIsFoundBy(node, name))
            return true;
        found = node;
        return false;
    });
    return found;
}

std::vector<qxNodePtr> qxScenegraph::findNodes(const char *name)
{
    std::vector<qxNodePtr> found;
    if (!name || !*name)
        return found;
    if (findCache())
        return findCache()->scene.all(name);
    qxWalkScene([&](const osg::NodePtr &node) {
        if (qxIsFoundBy(node, name))
            found.push_back(node);
        return true;
    });
    return found;
}

bool qxScenegraph::hasFindCache()
{
    return findCache() != nullptr;
}

void qxScenegraph::initFindCache()
{
    findCache().reset(new qxFoundNames{qxNameIndex({getRoot(), environmentGeometrySwitch()}),
                                       qxNameIndex(overlays())});
}

const qxFoundNames *qxFoundNames::current()
{
    return findCache().get();
}

void qxScenegraph::clearFindCache()
{
    findCache().reset();
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
