#pragma once

#include <OpenSG/OSGNode.h>

#include <QStringList>

#include <vector>

/// The ambiguous nodes of the scene, for commands in a terminal.
class qxAmbiguousNodes {
public:
    /// Finds the nodes that a capture could not distinguish.
    qxAmbiguousNodes();

    bool isEmpty() const { return m_nodes.empty(); }
    int count() const { return int(m_nodes.size()); }
    /// Name and path of one.
    QStringList row(int index) const;

    /// Shows the first ones and asks in the terminal whether they may be renamed; no without a
    /// terminal.
    bool mayRename();
    /// Gives each a name that no other node of the scene has, and says so on standard error.
    void rename();

private:
    void list() const;

    std::vector<osg::NodePtr> m_nodes;
};
