#pragma once

#include "Internal/Registry/qxDeferredDeletion.h"

#include <QHash>
#include <QString>

#include <vector>

class qxVariantSet;

/// What the variant sets record about materials, by node path and by material variant: read once,
/// so that a walk over the scene need not ask every set about every node.
///
/// It follows only the changes made through it.
class qxSnapshotIndex {
public:
    /// One entry of a set's material snapshot. Those of one path are chained in the order of the
    /// sets.
    struct Entry {
        qxVariantSet *set;
        QString material;
        int next; ///< -1 at the end
    };

    /// Reads all sets of the registry but `except`.
    explicit qxSnapshotIndex(const qxVariantSet *except);
    qxSnapshotIndex(const qxSnapshotIndex &) = delete;
    qxSnapshotIndex &operator=(const qxSnapshotIndex &) = delete;

    /// The first entry for that path, and the one behind an entry; null when there is none.
    const Entry *first(const QString &path) const;
    const Entry *next(const Entry &entry) const;
    /// Makes all entries of `path` whose sets are among `sets` name that material.
    void rewrite(const QString &path, const std::vector<qxVariantSet *> &sets,
                 const QString &material);

    /// The sets that choose a state of that material variant, in their order.
    const std::vector<qxVariantSet *> &referring(const QString &variant);
    /// Makes the set choose that state, in the place of another one if it chooses one.
    void choose(qxVariantSet *set, const QString &variant, const QString &state);

private:
    void read(qxVariantSet *set);

    const qxDeferredDeletion m_operation; ///< the sets may be removed, but not deleted
    std::vector<qxVariantSet *> m_sets;
    struct Chain {
        int first = -1;
        int last = -1;
    };
    std::vector<Entry> m_entries;
    QHash<QString, Chain> m_chains; ///< by path
    /// By the name of the material variant; read when it is first asked for.
    QHash<QString, std::vector<qxVariantSet *>> m_referring;
    bool m_isReferringRead = false;
};
