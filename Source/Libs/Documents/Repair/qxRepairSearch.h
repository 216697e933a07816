#pragma once

#include "Repair/qxBreak.h"
#include "Repair/qxNearNames.h"
#include "Repair/qxRepairEvidence.h"
#include "qxDocumentIndex.h"

#include <QSet>

#include <optional>

/// Finds what names that lead nowhere may have become. For each it looks at what shares something
/// with it, by indexes, and never at the whole scene.
class qxRepairSearch {
public:
    /// All but the history, which may be null, must outlive this.
    qxRepairSearch(const qxDocument &document, const qxSceneOutline &scene,
                   const qxRepairHistory *history);

    /// Adds the candidates, the best first.
    void complete(qxBreak &broken) const;

private:
    ///@{
    /// How many of one sort are looked at.
    static constexpr int AFew = 4;
    static constexpr std::size_t Few = 16;
    static constexpr std::size_t Many = 64;
    ///@}
    /// Stands for all that is not known where nobody remembers the old scene.
    static constexpr double Prior = 0.1;

    /// For a candidate of which nothing but the spelling is known: never beyond doubt.
    static constexpr double OnlySpelling = 0.65;

    typedef std::vector<int> Places;
    typedef std::vector<qxRepairCandidate> Candidates;

    /// What the document tells of a node.
    struct Told {
        QStringList children; ///< names of children that it should have
        QStringList states; ///< transform states that it should have
        QStringList parents; ///< paths of nodes that should be above it
        QStringList holders; ///< names of switches that should have it as a child
        int place = -1; ///< among the children of those
    };

    void readDocument();
    Told toldOf(const QString &name) const;
    Candidates nodes(const qxBreak &broken) const;
    Candidates overlays(const qxBreak &broken) const;
    Candidates paths(const qxBreak &broken) const;
    Candidates materials(const qxBreak &broken) const;
    Candidates states(const qxBreak &broken) const;
    Candidates variants(const qxBreak &broken) const;
    Candidates viewpoints(const qxBreak &broken) const;
    Candidates clips(const qxBreak &broken) const;

    QSet<int> nodesLike(const Told &told, const QString &name) const;
    QSet<int> nodesLikeOld(int old) const;
    void addNewChildren(const Places &parents, int place, QSet<int> &found) const;
    void weighOldNode(int old, int node, qxRepairEvidence &evidence) const;
    void weighToldNode(const Told &told, const QString &name, int node,
                       qxRepairEvidence &evidence) const;
    int depthOf(const QStringList &steps) const;
    QSet<int> nodesNear(const QStringList &steps) const;
    int above(int node, int count) const;
    void weighPath(const QStringList &was, int node, qxRepairEvidence &evidence) const;
    void weighOldMaterial(int old, int material, qxRepairEvidence &evidence) const;
    void weighToldMaterial(const QString &name, int material, qxRepairEvidence &evidence) const;
    double shapeShare(const qxBreak &broken, const QString &base, const QString &child) const;
    bool isOldNode(int node) const;
    int heirOf(int old) const;
    int findHeir(int old) const;
    bool fits(const qxBreak &broken, int node) const;
    QString materialOf(int node) const;

    const qxDocument &m_document;
    const qxSceneOutline &m_scene;
    const qxRepairHistory *const m_history;
    const qxDocumentIndex m_index;
    std::optional<qxDocumentIndex> m_oldIndex; ///< of the history
    qxNearNames m_nearNodes;
    qxNearNames m_nearMaterials;
    qxNearNames m_nearVariants;
    QSet<QString> m_named; ///< what the document names: a word for the sort, a blank, the name
    /// States that sets select, by missing variants.
    QHash<QPair<const qxVariantKind *, QString>, QSet<QString>> m_selected;
    QSet<quint64> m_knownPaths; ///< of nodes that snapshots lead to or through, and always did
    QSet<int> m_idleLights; ///< that no variant drives, some at most
    QSet<int> m_unnamed; ///< nodes that the document does not know, if they are few
    QHash<QString, Places> m_bases; ///< variants by the names of their scene objects
    QHash<QString, Places> m_holders; ///< variants by the names of their options
    QHash<QString, Places> m_materialUsers; ///< nodes whose snapshots have that material
    QHash<QString, QStringList> m_steps; ///< paths of snapshots by their steps, some at most
    QHash<QString, QString> m_snapshots; ///< materials by paths
    mutable QHash<int, int> m_heirs; ///< what old nodes have become; -1 for what is not clear
    mutable QHash<int, Places> m_newChildren; ///< of a node, those that the history does not know
};
