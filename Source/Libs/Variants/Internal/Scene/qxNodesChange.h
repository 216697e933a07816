#pragma once

#include <OpenSG/OSGNode.h>

#include <string>
#include <vector>

/// The visibility of one node for the change notifications. Names are UTF-8.
struct qxNodesChange {
    std::vector<std::string> visible;
    std::vector<std::string> invisible;
    std::string parent; ///< the switch itself for its children, else the node's parent
    std::string path; ///< of the node, see qxNodeVisibility::nodePath

    /// For a switch its children by its choice; a switch that shows all lists them as invisible.
    /// For any other node the node itself by its traversal mask. The node must not be null.
    static qxNodesChange of(const osg::NodePtr &node);

    /// Sorts the names of a switch's children by the shown child: -1 hides all, -2 shows all, which
    /// `of` never passes. Any other number without a name is reported on standard error and leaves
    /// both lists empty.
    void sortChildren(osg::Int32 choice, std::vector<std::string> names);
};
