#include "qxOverlays.h"

#include "Scene/qxNameIndex.h"
#include "Scene/qxNodeName.h"
#include "Scene/qxScene.h"
#include "qxNodeWalk.h"

osg::NodePtr qxOverlays::getPoolRoot()
{
    const qxScene *scene = qxScene::current();
    return scene ? scene->overlayRoot() : osg::NodePtr();
}

qxNodePtr qxOverlays::findOverlay(const char *name)
{
    const std::vector<qxNodePtr> found = findOverlays(name);
    return found.empty() ? qxNodePtr() : found.front();
}

std::vector<qxNodePtr> qxOverlays::findOverlays(const char *name)
{
    std::vector<qxNodePtr> found;
    if (!name || !*name)
        return found;
    if (const qxFoundNames *names = qxFoundNames::current())
        return names->overlays.all(name);
    const osg::NodePtr root = getPoolRoot();
    qxWalkNodes(root, [&](const osg::NodePtr &node) {
        if (node != root && qxIsFoundBy(node, name))
            found.push_back(node);
        return true;
    });
    return found;
}
