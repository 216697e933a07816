#pragma once

#include <OpenSG/OSGNode.h>

#include <vector>

/// The nodes that a walk has still to visit, in scene order. It keeps ids, because listeners that
/// run between two visits may remove nodes: what is gone or has no parent any more is passed over.
class qxOpenNodes {
public:
    /// Begins with that node, which may be null.
    explicit qxOpenNodes(const osg::NodePtr &top);

    /// Takes the next node; null at the end.
    osg::NodePtr take();
    /// Puts the children of a node in front of all others, unless it left the scene.
    void addChildrenOf(const osg::NodePtr &node);

    /// The living node with that id, or null.
    static osg::NodePtr withId(osg::UInt32 id);

private:
    bool isInPlace(const osg::NodePtr &node) const;

    const osg::UInt32 m_top;
    std::vector<osg::UInt32> m_open;
};
