#pragma once

#include "Scene/qxEditReader.h"
#include "qxNodePtr.h"

#include <string>
#include <unordered_map>

/// Gives nodes of a tree unique names. The names of the tree are cached between renamings, as long
/// as nothing else is edited.
class qxNodeNames {
public:
    /// Names the node and its clones of the same name: `name`, if need be with the smallest number
    /// that makes it unique among the nodes at and below `root`.
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
