#pragma once

#include "qxNodeSelection.h"

/// Shows and hides nodes for a look at the scene, as ticks in the tree do: no edits. It remembers
/// what it hid, and undoes that only where nobody else has changed it since.
class qxNodeVisibility : public QObject {
    Q_OBJECT

public:
    typedef qxNodeSelection::Nodes Nodes;

    using QObject::QObject;

    void hide(const Nodes &nodes);
    /// With all that is above them.
    void show(const Nodes &nodes);
    /// A tick: the node alone, whatever is above it.
    void tick(const osg::NodePtr &node, bool isShown);
    /// Hides everything else that has a surface; lights stay on. Isolating again starts from what
    /// was shown before.
    void isolate(const Nodes &nodes);
    bool isIsolated() const { return !m_isolation.empty(); }
    /// Shows what isolate has hidden.
    void endIsolation();
    bool hasHidden() const { return !m_hidden.empty(); }
    /// Ends the isolation and shows what was hidden here.
    void showAll();
    /// Forgets what others have changed since: it is not undone.
    void follow();
    /// For another scene.
    void forget();

Q_SIGNALS:
    void aboutToChange();
    void changed();

private:
    /// How a node was before.
    struct Change {
        osg::NodeRefPtr node;
        osg::UInt32 before;
        osg::UInt32 after;
    };
    typedef std::vector<Change> Changes;

    static void set(const osg::NodePtr &node, osg::UInt32 mask, Changes &changes);
    static void revert(Changes &changes);
    static void isolate(const Nodes &nodes, Changes &changes);
    void finish();

    Changes m_isolation; ///< in the order in which they were made, as the next
    Changes m_hidden;
};
