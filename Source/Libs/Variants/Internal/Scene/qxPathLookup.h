#pragma once

#include "qxNodePtr.h"

#include <QString>

#include <string>
#include <vector>

/// Node paths, and finding nodes by them.
///
/// A path is made of the names from the topmost node below the scene root down to the node, joined
/// by "/". Nothing is escaped, so that a "/" in a name looks like a step, and a node without a name
/// adds an empty step.
namespace qxPathLookup {

/// What the hash of every path starts from.
constexpr unsigned int HashStart = 2166136261u;

/// The node's path; empty for a null node. It costs as much as it is long.
QString getNodePath(qxNodePtr node);
/// The same as UTF-8.
std::string utf8Path(const osg::NodePtr &node);

/// `hash` continued over these bytes. Bytes from 0x80 on count as negative numbers.
unsigned int hashOf(const char *bytes, unsigned int hash = HashStart);

/// Takes the whole scene into the lookup table in place of what it held. The table keeps what the
/// scene was then: nodes that are destroyed later drop out, no other change is followed.
void createLookupTable();
/// Adds the node and everything below it; `parentHash` is the hash of its parent's path.
void createLookupTableRecursive(qxNodePtr node, unsigned int parentHash);
/// Every node of the table whose path has that hash, in scene order. Different paths may have it.
std::vector<qxNodePtr> findHash(unsigned int hash);
/// The nodes of the table that have that path (UTF-8), in scene order.
std::vector<qxNodePtr> findPath(const char *path);
/// Takes out the nodes that have another path (UTF-8) and keeps the order of the others.
void removeFalsePositives(std::vector<qxNodePtr> &nodes, const std::string &path);

} // namespace qxPathLookup
