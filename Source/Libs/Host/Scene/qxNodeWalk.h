#pragma once

#include "qxScenegraph.h"

#include <OpenSG/OSGNode.h>

#include <vector>

/// The node's name by the rule of qxNodeUtils::getName, without making a copy: never null, valid
/// until the node or its core is renamed or destroyed.
const char *qxNodeName(const osg::NodePtr &node);
/// Whether look-ups by `name` find the node (see qxNodeUtils::isFoundByName).
bool qxIsFoundBy(const osg::NodePtr &node, const char *name);
/// Whether the node is nothing but a geometry, as loading makes it of a mesh's primitive: without
/// children and without a name of its own.
bool qxIsPart(const osg::NodePtr &node);

/// Calls `visit(node)` for `top` and everything below it in scene order, until it returns false.
/// Nothing may be added or removed meanwhile. The depth of the scene does not matter. Says whether
/// all were visited.
template <class Visit>
bool qxWalkNodes(const osg::NodePtr &top, const Visit &visit)
{
    if (top == osg::NullFC)
        return true;
    std::vector<osg::NodePtr> open(1, top);
    while (!open.empty()) {
        const osg::NodePtr node = open.back();
        open.pop_back();
        if (!visit(node))
            return false;
        const osg::MFNodePtr &children = *node->getMFChildren();
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return true;
}

/// The same for the whole scene: the root and what is below it, then the environment.
template <class Visit>
void qxWalkScene(const Visit &visit)
{
    if (qxWalkNodes(qxScenegraph::getRoot(), visit))
        qxWalkNodes(qxScenegraph::environmentGeometrySwitch(), visit);
}
