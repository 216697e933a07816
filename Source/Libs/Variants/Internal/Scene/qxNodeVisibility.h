#pragma once

#include <OpenSG/OSGNode.h>

#include <string>

/// Walks up and down the scene from one node. A null node is left alone.
namespace qxNodeVisibility {

/// Makes the node and everything below it visible.
void pushEnable(const osg::NodePtr &node);
/// Hides the geometry nodes at and below the node; other nodes keep their masks.
void pushDisable(const osg::NodePtr &node);
/// The names (UTF-8) from the top down to the node, each followed by "|". The path begins below the
/// scene root or below the nearest node called "Root"; it is empty for either of them.
std::string nodePath(const osg::NodePtr &node);

} // namespace qxNodeVisibility
