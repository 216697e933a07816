#include "Internal/qxSnapshotIndex.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include <algorithm>

qxSnapshotIndex::qxSnapshotIndex(const qxVariantSet *except)
{
    for (qxVariantSet *set : qxVariants::_variantSets) {
        if (set == except)
            continue;
        m_uses.emplace_back(*set);
        m_sets.push_back(set);
        const QMap<QString, QString> &snapshots = set->materialSnapshots;
        for (auto each = snapshots.begin(); each != snapshots.end(); ++each)
            m_entries[each.key()].push_back({set, each.value()});
    }
}

const qxSnapshotIndex::Entries &qxSnapshotIndex::at(const QString &path) const
{
    static const Entries none;
    const auto found = m_entries.find(path);
    return found == m_entries.end() ? none : *found;
}

void qxSnapshotIndex::rewrite(const QString &path, const std::vector<qxVariantSet *> &sets,
                              const QString &material)
{
    for (Entry &entry : m_entries[path]) {
        if (entry.material == material
            || std::find(sets.begin(), sets.end(), entry.set) == sets.end())
            continue;
        entry.material = material;
        entry.set->addMaterialSnapshot(path, material);
    }
}

const std::vector<qxVariantSet *> &qxSnapshotIndex::referring(const QString &variant)
{
    if (!m_isReferringRead) {
        for (qxVariantSet *set : m_sets) {
            for (const qxVariantState &state : set->materialVariants)
                m_referring[state.variant].push_back(set);
        }
        m_isReferringRead = true;
    }
    return m_referring[variant];
}

void qxSnapshotIndex::choose(qxVariantSet *set, const QString &variant, const QString &state)
{
    if (m_isReferringRead && !set->findMaterialVariant(variant))
        m_referring[variant].push_back(set);
    set->addMaterialVariant(variant, state);
}
