#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <QObject>

#include <vector>

/// The nodes that the user has picked, in the view or in the tree.
class qxNodeSelection : public QObject {
    Q_OBJECT

public:
    typedef std::vector<osg::NodePtr> Nodes;

    using QObject::QObject;

    /// In the order in which they were picked; those that left the scene are left out.
    Nodes nodes() const;
    /// The one that was picked last; null for none.
    osg::NodePtr current() const;
    /// Whether the node, or one above it, is among them.
    bool hasAtOrAbove(const osg::NodePtr &node) const;
    bool isEmpty() const { return nodes().empty(); }

    void select(const Nodes &nodes);
    void clear() { select({}); }

    /// What a click on a node, or on null for the background, does.
    enum Way {
        Alone, ///< picks this one alone
        Besides, ///< adds it to the others, or takes it out
        Again ///< goes on from what the last click at this place has picked: to its parent, and
              ///< from the topmost one back to the node
    };
    void pick(const osg::NodePtr &node, Way way);

Q_SIGNALS:
    /// Other nodes are picked.
    void changed();

private:
    std::vector<osg::NodeRefPtr> m_nodes;
};
