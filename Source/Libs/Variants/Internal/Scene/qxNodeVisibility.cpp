#include "Internal/Scene/qxNodeVisibility.h"

#include "Internal/Scene/qxSceneEdits.h"

#include "qxNames.h"

#include <OpenSG/OSGGeometry.h>

using qxSceneEdits::setTraversalMask;

void qxNodeVisibility::pushEnable(const osg::NodePtr &node)
{
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(node))
        setTraversalMask(each, qxSceneEdits::Visible);
}

void qxNodeVisibility::pushDisable(const osg::NodePtr &node)
{
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(node)) {
        if (osg::GeometryPtr::dcast(each->getCore()) != osg::NullFC)
            setTraversalMask(each, qxSceneEdits::Hidden);
    }
}

std::string qxNodeVisibility::nodePath(const osg::NodePtr &node)
{
    const osg::NodePtr root = qxScenegraph::getRoot();
    return qxNames::stepsTo(node, '|', [&root](const osg::NodePtr &each, const std::string &name) {
        return each == root || name == "Root";
    });
}
