#pragma once

#include "Internal/Materials/qxSnapshotReconciler.h"

#include "qxFindCache.h"

#include <QMap>

#include <optional>
#include <string>
#include <unordered_set>

/// One run over the scene for a set: a capture into it, or the restoring of switch materials for a
/// temporary one. It owns what such a run finds out. The innermost run is the current one.
class qxCaptureState {
public:
    /// Begins a run: reads what all other sets record. With `findsNodes` the run looks for nodes by
    /// name, for which the host's cache is on.
    qxCaptureState(const qxVariantSet &set, bool findsNodes);
    /// Ends it, and tells the other modules when materials changed.
    ~qxCaptureState() { s_current = m_outer; }
    qxCaptureState(const qxCaptureState &) = delete;
    qxCaptureState &operator=(const qxCaptureState &) = delete;

    /// Whether an active node has that name (UTF-8). A run goes through the scene once and takes
    /// it that no node is shown, hidden or renamed meanwhile.
    static bool hasActiveNode(const std::string &name);
    /// See qxSnapshotReconciler::handle. Outside of a run for the set this is a run of its own. A
    /// null node and one without a core are ignored.
    static void reconcile(const osg::NodePtr &node, const QString &path,
                          const osg::MaterialPtr &material,
                          const qxSnapshotReconciler::Scope &scope);

    QMap<QString, QString> materials; ///< the material snapshot: names by node path
    QSet<QString> visitedNames;
    std::set<osg::MaterialPtr> visitedMaterials;

private:
    static qxCaptureState *s_current;

    const qxVariantSet *const m_set;
    qxCaptureState *const m_outer;
    qxSnapshotReconciler m_reconciler;
    const qxFindCache m_cache;
    std::optional<std::unordered_set<std::string>> m_activeNames; ///< none until they are needed
};
