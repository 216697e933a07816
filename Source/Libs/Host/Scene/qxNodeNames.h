#pragma once

#include "Scene/qxEditReader.h"
#include "qxNodePtr.h"

#include <string>
#include <unordered_map>

/// Gives nodes of a tree names that no other node of it has. What the names of the tree are is
/// remembered from one renaming to the next, as long as nothing else is edited meanwhile.
class qxNodeNames {
public:
    /// Names the node and its clones of the same name: `name`, or else `name` with the smallest
    /// number behind it that makes it unlike the names of all other nodes at and below `root`.
    void rename(const osg::NodePtr &node, const std::string &name, const osg::NodePtr &root);

private:
    void follow(const osg::NodePtr &root);
    void count(const osg::NodePtr &root);
    std::string freeName(const std::string &name);

    osg::UInt32 m_root = 0; ///< id of the root whose tree was counted
    std::unordered_map<std::string, std::size_t> m_counts; ///< how many nodes have the name
    std::unordered_map<std::string, std::size_t> m_tried; ///< numbers below this one are taken
    qxEditReader m_edits;
};
