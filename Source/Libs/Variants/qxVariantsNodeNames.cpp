#include "Internal/Capture/qxNodeNameGuard.h"
#include "Internal/Scene/qxPathLookup.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"

bool qxVariants::verifyNodeNames()
{
    return qxNodeNameGuard::verifyNodeNames();
}

bool qxVariants::showAmbiguousNodesDialog(std::vector<osg::NodePtr> &nodes)
{
    return qxNodeNameGuard::askToRename(nodes);
}

bool qxVariants::containsAmbiguousVSets(std::vector<osg::NodePtr> &nodes)
{
    return qxNodeNameGuard::areReferredTo(nodes);
}

bool qxVariants::checkIfNodeMatchesNodePath(osg::NodePtr, const char *path, bool apply)
{
    if (!path)
        return false;
    std::vector<qxNodePtr> nodes = qxPathLookup::findHash(qxPathLookup::hashOf(path));
    qxPathLookup::removeFalsePositives(nodes, path);
    if (nodes.empty())
        return false;
    if (!apply)
        return true;
    const osg::MaterialPtr material = qxNodeUtils::getMaterial(nodes.front());
    for (std::size_t i = 1; i < nodes.size(); ++i)
        changeMaterial(nodes[i], material);
    return true;
}
