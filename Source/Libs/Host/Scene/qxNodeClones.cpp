#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGNodeCore.h>

namespace {

osg::NodeCorePtr coreOf(const osg::NodePtr &node)
{
    return node == osg::NullFC ? osg::NodeCorePtr() : node->getCore();
}

bool isInScene(const osg::NodePtr &node)
{
    osg::NodePtr top = node;
    while (top->getParent() != osg::NullFC)
        top = top->getParent();
    return top == qxScenegraph::getRoot() || top == qxScenegraph::environmentGeometrySwitch();
}

} // namespace

bool qxNodeUtils::isCloneOf(const osg::NodePtr &node, const osg::NodePtr &other)
{
    const osg::NodeCorePtr core = coreOf(node);
    return core != osg::NullFC && core == coreOf(other);
}

void qxNodeUtils::getInstancesInScenegraph(const osg::NodePtr &node, std::vector<qxNodePtr> &nodes)
{
    const osg::NodeCorePtr core = coreOf(node);
    if (core == osg::NullFC)
        return;
    for (const osg::NodePtr &parent : core->getParents()) {
        if (isInScene(parent))
            nodes.push_back(parent);
    }
}
