#pragma once

#include <OpenSG/OSGNode.h>

/// The node's name by the rule of qxNodeUtils::getName, without making a copy: never null, valid
/// until the node or its core is renamed or destroyed.
const char *qxNodeName(const osg::NodePtr &node);
/// Whether look-ups by `name` find the node (see qxNodeUtils::isFoundByName).
bool qxIsFoundBy(const osg::NodePtr &node, const char *name);
/// Whether the node is nothing but a geometry, as loading makes it of a mesh's primitive: without
/// children and without a name of its own.
bool qxIsPart(const osg::NodePtr &node);
