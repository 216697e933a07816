#include "Compare/qxDocumentDiff.h"

#include "Compare/qxDocumentPairs.h"
#include "Compare/qxFieldDiff.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

/// Compares the things of two documents sort by sort.
class Comparison {
public:
    Comparison(const qxDocument &before, const qxDocument &after)
        : m_before(before), m_after(after), m_pairs(before, after)
    {
        addGroups();
        addSets();
        addVariants();
    }

    QVector<qxThingDifference> things;

private:
    void addGroups();
    void addSets();
    void addVariants();
    /// The place that the set's group has now; -1 for none, or for a group that is gone.
    int groupNow(const qxDocumentSet &before) const
    {
        return before.group < 0 ? -1 : m_pairs.groups().after[std::size_t(before.group)];
    }
    bool isInItsGroup(int before, int after) const;
    std::vector<qxPairedEntry> orderedSets() const;
    void noteGroup(const qxPairedEntry &entry, qxFieldDiff &fields) const;
    void add(qxThingDifference::Thing thing, const qxPairedEntry &entry, qxFieldDiff &fields);

    const qxDocument &m_before;
    const qxDocument &m_after;
    const qxDocumentPairs m_pairs;
};

/// Of things in both documents the name, and the place if they moved. It is among those in front of
/// which `isFirst` is not true.
template <class List, class IsFirst>
void noteNameAndPlace(const List &before, const List &after, const IsFirst &isFirst,
                      const qxPairedEntry &entry, qxFieldDiff &fields)
{
    if (entry.before < 0 || entry.after < 0)
        return;
    const auto nameIn = [&isFirst](const List &list) {
        return [&](int place) {
            const auto &thing = list[std::size_t(place)];
            return isFirst(thing, list[std::size_t(place) + 1]) ? QString() : thing.name;
        };
    };
    const QString &old = before[std::size_t(entry.before)].name;
    const QString &now = after[std::size_t(entry.after)].name;
    if (old != now)
        fields.add(QLatin1String("name"), qxDifferenceSort::Renamed, QString(), old, now);
    if (entry.isMoved)
        fields.moved(QLatin1String("place"), QString(), nameIn(before), nameIn(after), entry);
}

/// The thing at that place, or what one is compared with that has none.
template <class List>
const typename List::value_type &at(const List &list, int place)
{
    static const typename List::value_type none;
    return place < 0 ? none : list[std::size_t(place)];
}

void Comparison::add(qxThingDifference::Thing thing, const qxPairedEntry &entry,
                     qxFieldDiff &fields)
{
    if (fields.fields.isEmpty() && entry.before >= 0 && entry.after >= 0)
        return;
    for (qxFieldDifference &each : fields.fields) {
        if (entry.before < 0) {
            each.sort = qxDifferenceSort::Added;
            each.before.clear();
        } else if (entry.after < 0) {
            each.sort = qxDifferenceSort::Removed;
            each.after.clear();
        }
    }
    things.push_back({thing, entry.before, entry.after, fields.fields});
}

void Comparison::addGroups()
{
    for (const qxPairedEntry &entry : qxPairedEntries(m_pairs.groups())) {
        qxFieldDiff fields;
        noteNameAndPlace(
            m_before.groups, m_after.groups, [](const auto &, const auto &) { return false; },
            entry, fields);
        fields.group(at(m_before.groups, entry.before), at(m_after.groups, entry.after));
        add(qxThingDifference::Group, entry, fields);
    }
}

bool Comparison::isInItsGroup(int before, int after) const
{
    const qxDocumentSet &old = m_before.sets[std::size_t(before)];
    const qxDocumentSet &now = m_after.sets[std::size_t(after)];
    return groupNow(old) == now.group && (old.group < 0) == (now.group < 0);
}

/// Sets move among those of their group alone: for their order the groups are brought into the
/// order that they have now, and sets of other groups than before are gone here and new there.
std::vector<qxPairedEntry> Comparison::orderedSets() const
{
    std::vector<int> old(m_before.sets.size());
    std::iota(old.begin(), old.end(), 0);
    const auto turn = [&](int set) {
        const int group = groupNow(m_before.sets[std::size_t(set)]);
        return group < 0 ? std::numeric_limits<int>::max() : group;
    };
    std::stable_sort(old.begin(), old.end(),
                     [&](int one, int other) { return turn(one) < turn(other); });
    qxPairing pairing{std::vector<int>(old.size(), -1), std::vector<int>(m_after.sets.size(), -1)};
    for (std::size_t i = 0; i < old.size(); ++i) {
        const int after = m_pairs.sets().after[std::size_t(old[i])];
        if (after < 0 || !isInItsGroup(old[i], after))
            continue;
        pairing.after[i] = after;
        pairing.before[std::size_t(after)] = int(i);
    }
    std::vector<qxPairedEntry> entries;
    for (const qxPairedEntry &each : qxPairedEntries(pairing)) {
        const int before = each.after >= 0 ? m_pairs.sets().before[std::size_t(each.after)]
                                           : old[std::size_t(each.before)];
        if (each.after >= 0 || m_pairs.sets().after[std::size_t(before)] < 0)
            entries.push_back({before, each.after, each.isMoved});
    }
    return entries;
}

/// Whether the set went to another group.
void Comparison::noteGroup(const qxPairedEntry &entry, qxFieldDiff &fields) const
{
    if (entry.before < 0 || entry.after < 0 || isInItsGroup(entry.before, entry.after))
        return;
    fields.add(QLatin1String("group"), qxDifferenceSort::Moved, QString(),
               at(m_before.groups, at(m_before.sets, entry.before).group).name,
               at(m_after.groups, at(m_after.sets, entry.after).group).name);
}

void Comparison::addSets()
{
    for (const qxPairedEntry &entry : orderedSets()) {
        qxFieldDiff fields;
        noteNameAndPlace(
            m_before.sets, m_after.sets,
            [](const auto &one, const auto &next) { return one.group != next.group; }, entry,
            fields);
        noteGroup(entry, fields);
        fields.set(m_pairs, at(m_before.sets, entry.before), at(m_after.sets, entry.after));
        add(qxThingDifference::Set, entry, fields);
    }
}

void Comparison::addVariants()
{
    for (const qxPairedEntry &entry : qxPairedEntries(m_pairs.variants())) {
        qxFieldDiff fields;
        noteNameAndPlace(
            m_before.variants, m_after.variants,
            [](const auto &one, const auto &next) { return one.kind != next.kind; }, entry, fields);
        fields.variant(m_pairs, at(m_before.variants, entry.before),
                       at(m_after.variants, entry.after));
        add(qxThingDifference::Variant, entry, fields);
    }
}

} // namespace

qxDocumentDiff qxDocumentDiff::of(const qxDocument &before, const qxDocument &after)
{
    return {Comparison(before, after).things};
}
