#pragma once

#include "Scene/qxEditReader.h"

#include <OpenSG/OSGNode.h>

#include <string>
#include <utility>
#include <vector>

/// Finds nodes of the scene by path: the names from below the root down to the node, joined by "/".
/// The paths of the environment begin with its own name.
///
/// From the second look-up on it uses a table, which is rebuilt when names or structure of the
/// scene are edited. Edits outside of brackets are not seen: use an index for one task only.
class qxPathIndex {
public:
    /// The first node in scene order with exactly that path; null when there is none, and for an
    /// empty path.
    osg::NodePtr first(const std::string &path);

private:
    void follow();
    void build();
    osg::NodePtr lookUp(const std::string &path) const;
    bool isOutdatedBy(osg::UInt32 edited, osg::BitVector mask) const;
    bool isRight(const osg::NodePtr &node) const;

    std::vector<std::pair<std::size_t, osg::NodePtr>> m_nodes; ///< by hash, then in scene order
    std::pair<osg::UInt32, osg::UInt32> m_tops; ///< ids of the root and of the environment
    int m_walks = 0; ///< look-ups without the table
    qxEditReader m_edits;
};
