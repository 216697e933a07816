#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCoreFields.h>

#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>

#include <set>
#include <vector>

/// Finds the nodes that a capture could not tell apart.
///
/// Switches and their children are addressed by name, geometries with a material by their path:
/// those that share it with an earlier one are ambiguous. Clones of one another are not. A path is
/// here made of all names from the scene root down, each followed by "/".
class qxVariantCaptureChecker {
public:
    /// Walks the whole scene and collects every ambiguous node.
    void findAmbiguousNodes();
    /// Whether there is an ambiguous node; the walk ends at the first one.
    bool hasSceneAmbiguousNodes();
    /// What the last walk found, in scene order.
    const std::vector<osg::NodePtr> &getAmbiguousNodes() const { return m_ambiguousNodes; }

    /// Walks the node and everything below it on top of what was found so far; `path` is that of
    /// its parent. Whether an ambiguous node was found; with `stopAtFirst` the walk ends there.
    bool findAmbiguousNodes(QString path, osg::NodePtr node, bool stopAtFirst);
    /// Whether variants address the node by name: it is a switch, or the child of a switch with
    /// another child of the same name.
    bool needsUniqueName(const osg::NodePtr &node) const;
    /// Whether snapshots address the node by path: it is a geometry with a material.
    bool needsUniquePath(const osg::NodePtr &node) const;

private:
    struct Place;

    void clear();
    int pathBelow(int path, const QString &name);
    bool visit(const Place &place);
    bool report(const osg::NodePtr &node);

    QHash<QPair<int, QString>, int> m_paths; ///< numbers of paths, by the path above and a name
    QMap<int, osg::NodePtr> m_nodeOfPath; ///< the last one recorded
    QMap<QString, osg::NodePtr> m_nodeOfName; ///< the first one that needs a unique name
    std::vector<osg::NodePtr> m_ambiguousNodes;
    std::set<osg::NodeCorePtr> m_reportedCores;
};
