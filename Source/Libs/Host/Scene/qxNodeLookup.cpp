#include "Scene/qxNameIndex.h"
#include "Scene/qxNodeName.h"
#include "Scene/qxSceneWalk.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

#include <memory>

namespace {

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

} // namespace

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
