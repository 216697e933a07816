#include "Internal/Materials/qxSnapshotIndex.h"

#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include <algorithm>

qxSnapshotIndex::qxSnapshotIndex(const qxVariantSet *except)
{
    std::size_t total = 0;
    int longest = 0;
    for (qxVariantSet *set : qxVariantLists::_variantSets) {
        if (set == except)
            continue;
        m_sets.push_back(set);
        total += std::size_t(set->materialSnapshots.size());
        longest = std::max(longest, set->materialSnapshots.size());
    }
    m_entries.reserve(total);
    m_chains.reserve(longest);
    for (qxVariantSet *set : m_sets)
        read(set);
}

void qxSnapshotIndex::read(qxVariantSet *set)
{
    const QMap<QString, QString> &snapshots = set->materialSnapshots;
    for (auto each = snapshots.begin(); each != snapshots.end(); ++each) {
        Chain &chain = m_chains[each.key()];
        const int added = int(m_entries.size());
        (chain.first < 0 ? chain.first : m_entries[std::size_t(chain.last)].next) = added;
        chain.last = added;
        m_entries.push_back({set, each.value(), -1});
    }
}

const qxSnapshotIndex::Entry *qxSnapshotIndex::first(const QString &path) const
{
    const auto found = m_chains.find(path);
    return found == m_chains.end() ? nullptr : &m_entries[std::size_t(found->first)];
}

const qxSnapshotIndex::Entry *qxSnapshotIndex::next(const Entry &entry) const
{
    return entry.next < 0 ? nullptr : &m_entries[std::size_t(entry.next)];
}

void qxSnapshotIndex::rewrite(const QString &path, const std::vector<qxVariantSet *> &sets,
                              const QString &material)
{
    for (int i = m_chains.value(path).first; i >= 0; i = m_entries[std::size_t(i)].next) {
        Entry &entry = m_entries[std::size_t(i)];
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
