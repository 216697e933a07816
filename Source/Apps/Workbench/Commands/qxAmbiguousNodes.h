#pragma once

#include <OpenSG/OSGNode.h>

#include <QStringList>

#include <vector>

/// The nodes of the scene that a capture could not tell apart, as people deal with them in a
/// terminal.
class qxAmbiguousNodes {
public:
    /// Finds those of the opened scene.
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
