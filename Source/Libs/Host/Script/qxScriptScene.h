#pragma once

#include "Script/qxScriptHandle.h"

/// The functions of scripts that deal with nodes and materials.
namespace qxScriptScene {

/// The first node of that name; a null handle when there is none.
qxScriptNode findNode(const char *name);
/// The first node in scene order with that path: the names from below the root down to the node,
/// joined by "/". Behind them come the environment and what is below it.
qxScriptNode findNodePath(const char *path);
/// Many look-ups by path in a row are quick by a table, which goes with the outermost script.
void forgetPaths();
/// The first material of that name.
qxScriptMaterial findMaterial(const char *name);

/// Empty for a null handle.
std::string nameOf(const qxScriptNode &node);
std::string nameOf(const qxScriptMaterial &material);

/// A node is active when all bits of its traversal mask are set.
bool isActive(const qxScriptNode &node);
/// Shows the node, or hides it with all below it. A null handle only warns.
void setActive(const qxScriptNode &node, bool active);

/// See qxMaterials::setIgnoreMaterialGroup. A path without a material group only warns.
void setIgnoreMaterialGroup(const char *path, bool ignore);

} // namespace qxScriptScene
