#pragma once

#include "Internal/qxSetUse.h"

#include <QHash>
#include <QString>

#include <list>
#include <vector>

class qxVariantSet;

/// What the variant sets record about materials, by node path and by material variant: read once,
/// so that a walk over the scene need not ask every set about every node.
///
/// The sets are kept alive as long as the index is. It follows only the changes made through it.
class qxSnapshotIndex {
public:
    /// One entry of a set's material snapshot.
    struct Entry {
        qxVariantSet *set;
        QString material;
    };
    typedef std::vector<Entry> Entries;

    /// Reads all sets of the registry but `except`.
    explicit qxSnapshotIndex(const qxVariantSet *except);
    qxSnapshotIndex(const qxSnapshotIndex &) = delete;
    qxSnapshotIndex &operator=(const qxSnapshotIndex &) = delete;

    /// What the sets record for that path, in the order of the sets.
    const Entries &at(const QString &path) const;
    /// Makes all entries of `path` whose sets are among `sets` name that material.
    void rewrite(const QString &path, const std::vector<qxVariantSet *> &sets,
                 const QString &material);

    /// The sets that choose a state of that material variant, in their order.
    const std::vector<qxVariantSet *> &referring(const QString &variant);
    /// Makes the set choose that state, in the place of another one if it chooses one.
    void choose(qxVariantSet *set, const QString &variant, const QString &state);

private:
    std::list<qxSetUse> m_uses;
    std::vector<qxVariantSet *> m_sets;
    QHash<QString, Entries> m_entries;
    /// By the name of the material variant; read when it is first asked for.
    QHash<QString, std::vector<qxVariantSet *>> m_referring;
    bool m_isReferringRead = false;
};
