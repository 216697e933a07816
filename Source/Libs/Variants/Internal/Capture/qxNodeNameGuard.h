#pragma once

#include <OpenSG/OSGNode.h>

#include <vector>

/// Makes sure that no capture begins while nodes are ambiguous.
namespace qxNodeNameGuard {

/// Renames ambiguous nodes when the user agrees. False when there are such nodes and they keep
/// their names.
bool verifyNodeNames();
/// Asks the user whether these nodes may be renamed. Where no dialog can be shown the nodes are
/// logged, and the answer is no.
bool askToRename(const std::vector<osg::NodePtr> &nodes);
/// Whether a variant set refers to one of the nodes by its name or by its path.
bool areReferredTo(const std::vector<osg::NodePtr> &nodes);

} // namespace qxNodeNameGuard
