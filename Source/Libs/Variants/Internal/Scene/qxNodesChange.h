#pragma once

#include <OpenSG/OSGNode.h>

#include <string>
#include <vector>

/// What is visible of one node, as the change notifications tell it. Names are UTF-8.
struct qxNodesChange {
    std::vector<std::string> visible;
    std::vector<std::string> invisible;
    std::string parent; ///< the switch itself for its children, else the node's parent
    std::string path; ///< of the node, see qxNodeVisibility::nodePath

    /// For a switch its children after its choice, for any other node the node itself after its
    /// traversal mask. The node must not be null.
    static qxNodesChange of(const osg::NodePtr &node);

    /// Sorts the names of a switch's children after its choice: -1 hides all, -2 shows all. Any
    /// other number without a name is reported on standard error and leaves both lists empty.
    void sortChildren(osg::Int32 choice, std::vector<std::string> names);
};
