#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <QHash>
#include <QStringList>

#include <vector>

/// A node of an outline.
struct qxOutlineNode {
    QString name; ///< by the host's rule
    osg::UInt32 id = 0; ///< of the node in the scene
    int parent = -1; ///< the place of the node above it; -1 for none
    int place = 0; ///< among the children of its parent
    std::vector<int> children; ///< their places, in order
    bool isLight = false; ///< it is one of the host's lights
    bool isOverlay = false; ///< it stands in the tree of the overlays
    quint64 path = 0; ///< the hash of its path
    quint64 sort = 0; ///< equal for nodes with cores of one type
    quint64 tree = 0; ///< equal for trees of the same shapes, whatever their names
    bool hasShape = false; ///< there is geometry in its tree
    quint64 pose = 0; ///< equal for the same transform
    int material = -1; ///< the place of its own material; -1 for none
    QStringList states; ///< the names of its transform states
};

/// A material of an outline.
struct qxOutlineMaterial {
    QString name; ///< may be empty
    quint64 look = 0; ///< equal for the same type and colours
    std::vector<int> contents; ///< the places of those that it is made of
    std::vector<int> holders; ///< the places of those that are made of it
    std::vector<int> users; ///< the places of nodes that have it, some at most
};

/// A viewpoint of an outline.
struct qxOutlineViewpoint {
    QString name; ///< may be empty
    quint64 pose = 0; ///< equal for the same place and direction
};

/// What of a scene makes its things recognisable when they get other names or places: a snapshot,
/// which outlives the scene.
class qxSceneOutline {
public:
    typedef std::vector<int> Places; ///< in one of the lists

    /// Of no scene.
    qxSceneOutline() = default;
    /// The host's present scene. Takes time in proportion to it.
    static qxSceneOutline take();

    std::vector<qxOutlineNode> nodes; ///< in scene order, overlays last
    std::vector<qxOutlineMaterial> materials; ///< in the order of the pool, with what they contain
    std::vector<qxOutlineViewpoint> viewpoints; ///< in their order
    QStringList clips; ///< the names, in their order

    ///@{
    /// Nodes of the scene by the names that they are found by, by the hashes of their paths and of
    /// their trees.
    const Places &named(const QString &name) const { return at(m_named, name); }
    const Places &onPath(quint64 path) const { return at(m_paths, path); }
    const Places &withTree(quint64 tree) const { return at(m_trees, tree); }
    ///@}
    /// Overlays by the names that they are found by.
    const Places &overlaysNamed(const QString &name) const { return at(m_overlays, name); }
    /// Nodes of the scene whose path ends in those steps, of which there may be up to TailSteps.
    const Places &withTail(const QStringList &steps) const { return at(m_tails, hashOf(steps)); }
    static constexpr int TailSteps = 8; ///< see withTail
    /// The lights, in scene order.
    const Places &lights() const { return m_lights; }
    /// Nodes of the scene that have a transform state of that name.
    const Places &withState(const QString &state) const { return at(m_states, state); }
    ///@{
    /// Materials by name and by look.
    const Places &materialsNamed(const QString &name) const { return at(m_materials, name); }
    const Places &withLook(quint64 look) const { return at(m_looks, look); }
    ///@}

    /// The name of the node; empty for -1.
    QString nameAt(int node) const;
    /// The path of the node, as in snapshots.
    QString pathOf(int node) const;
    /// The hash of such a path.
    static quint64 hashOf(const QString &path);

private:
    template <class Key>
    static const Places &at(const QHash<Key, Places> &places, const Key &key)
    {
        static const Places none;
        const auto found = places.constFind(key);
        return found == places.constEnd() ? none : *found;
    }
    static quint64 hashOf(const QStringList &steps);
    void addNodes();
    void addMaterials();
    void noteTrees();
    void noteNames();

    QHash<osg::UInt32, int> m_ids; ///< the places of materials, while it is taken
    QHash<QString, Places> m_named;
    QHash<QString, Places> m_overlays;
    QHash<QString, Places> m_states;
    QHash<quint64, Places> m_paths;
    Places m_lights;
    QHash<quint64, Places> m_trees;
    QHash<quint64, Places> m_tails;
    QHash<QString, Places> m_materials;
    QHash<quint64, Places> m_looks;
};
