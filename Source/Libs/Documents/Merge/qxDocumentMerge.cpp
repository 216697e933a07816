#include "Merge/qxDocumentMerge.h"

#include "Compare/qxReferenceLookup.h"
#include "Merge/qxMergeNames.h"
#include "Merge/qxMergeOrder.h"
#include "Merge/qxMergeVariants.h"

#include <QMap>

#include <algorithm>

namespace {

/// The documents as the merged one calls everything.
typedef qxMergeTriple<qxDocument> Documents;

/// A group or set of the merged document.
template <class Thing>
struct Merged {
    bool isThere = false;
    qxMergeFork<Thing> fork;
    QVector<qxMergeConflict> conflicts; ///< besides those of the fork
    QString second; ///< the name of the version of theirs; empty for none
};

class Merger {
public:
    Merger(const qxMergeNames::Documents &originals, qxMergePreference preference)
        : m_names(originals, preference), m_documents{{m_names.translated(MergeBase),
                                                       m_names.translated(MergeOurs),
                                                       m_names.translated(MergeTheirs)}},
          m_variants(m_documents, m_names, preference), m_preference(preference)
    {
    }

    qxDocumentMerge merged();

private:
    typedef Merged<qxDocumentGroup> Group;
    typedef Merged<qxDocumentSet> Set;

    template <class Thing>
    qxMergeFields::Versions<Thing> versions(std::vector<Thing> qxDocument::*list,
                                            const qxMergeThing &thing) const;
    template <class Thing>
    void noteClashes(const qxMergeThings &things, std::vector<Merged<Thing>> &all) const;
    template <class Thing>
    void nameSecond(qxMergeThings &things, int number, Merged<Thing> &thing) const;
    template <class Thing>
    void addConflicts(const qxMergeThings &things, int number, const Merged<Thing> &thing);
    template <class Thing>
    void noteRemoved(int only, Merged<Thing> &thing) const;

    void mergeGroups();
    void mergeSets();
    void mergeSet(int number);
    void mergeGroupOf(Set &set, const qxMergeFields::Versions<qxDocumentSet> &versions) const;
    void keepUsedGroups();
    void noteUses();
    void noteUses(const qxDocumentSet &set, const qxDocumentSet *base, int side);
    void addGroups();
    void addSets();
    std::vector<int> ordered(const qxMergeOrder::Lists &lists);
    void addSetsOf(int group, const std::vector<int> &order);
    std::size_t placeOf(const qxDocumentSet &set) const;
    qxDocumentSet secondOf(const Set &set) const;
    qxMergeOrder::Before byName(const qxMergeThings &things) const;

    qxMergeNames m_names;
    Documents m_documents;
    qxMergeVariants m_variants;
    qxMergePreference m_preference;
    std::vector<Group> m_groups; ///< by their numbers
    std::vector<Set> m_sets; ///< by their numbers
    std::vector<int> m_groupOrder; ///< their numbers
    std::vector<int> m_groupPlaces; ///< in the merged document, by their numbers; -1 for none
    std::vector<int> m_local; ///< see ordered
    std::vector<std::vector<qxDocumentSet>> m_placed; ///< by their groups; those of none are last
    std::vector<std::vector<qxDocumentSet>> m_late; ///< those that come behind them
    qxDocumentMerge m_result;
};

qxDocumentMerge Merger::merged()
{
    mergeGroups();
    mergeSets();
    keepUsedGroups();
    if (m_variants.hasRemoved())
        noteUses();
    addGroups();
    addSets();
    m_result.document.variants = m_variants.result();
    m_result.conflicts += m_variants.conflicts();
    return std::move(m_result);
}

template <class Thing>
qxMergeFields::Versions<Thing> Merger::versions(std::vector<Thing> qxDocument::*list,
                                                const qxMergeThing &thing) const
{
    qxMergeFields::Versions<Thing> all{};
    for (std::size_t side = 0; side < all.size(); ++side) {
        if (thing.isIn(int(side)))
            all[side] = &(m_documents[side].*list)[std::size_t(thing.at[side])];
    }
    return all;
}

template <class Thing>
void Merger::noteClashes(const qxMergeThings &things, std::vector<Merged<Thing>> &all) const
{
    for (const qxMergeNames::Clash &clash : m_names.clashes) {
        if (clash.things != &things)
            continue;
        Merged<Thing> &thing = all[std::size_t(clash.thing)];
        const qxMergeConflict conflict = things.conflictOf(clash.thing, clash.other);
        (clash.thing == clash.other ? thing.fork.conflicts : thing.conflicts).push_back(conflict);
    }
}

template <class Thing>
void Merger::nameSecond(qxMergeThings &things, int number, Merged<Thing> &thing) const
{
    if (!thing.isThere || !thing.fork.isForked() || m_preference != qxMergePreference::Both)
        return;
    const bool hasTwoNames = std::any_of(
        thing.fork.conflicts.begin(), thing.fork.conflicts.end(),
        [](const qxMergeConflict &each) { return each.field == QLatin1String("name"); });
    const qxMergeThing &named = things.things[std::size_t(number)];
    thing.second =
        things.otherName({0, hasTwoNames ? things.nameIn(MergeTheirs, named).second : named.name});
}

template <class Thing>
void Merger::addConflicts(const qxMergeThings &things, int number, const Merged<Thing> &thing)
{
    QVector<qxMergeConflict> own = thing.fork.conflicts;
    for (qxMergeConflict &each : own)
        each.second = thing.second;
    own += thing.conflicts;
    for (qxMergeConflict &each : own) {
        each.thing =
            std::is_same_v<Thing, qxDocumentSet> ? qxMergeConflict::Set : qxMergeConflict::Group;
        each.name = things.things[std::size_t(number)].name;
    }
    m_result.conflicts += own;
}

template <class Thing>
void Merger::noteRemoved(int only, Merged<Thing> &thing) const
{
    thing.conflicts.push_back(qxMergeConflict::removed(only));
    thing.isThere = qxMergeKeeps(m_preference, only);
}

qxMergeOrder::Before Merger::byName(const qxMergeThings &things) const
{
    return [&things](int one, int other) {
        return things.things[std::size_t(one)].name < things.things[std::size_t(other)].name;
    };
}

void Merger::mergeGroups()
{
    const qxMergeThings &things = m_names.groups;
    m_groups.resize(things.things.size());
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        const qxMergeThing &thing = things.things[i];
        const auto versions = this->versions(&qxDocument::groups, thing);
        Group &group = m_groups[i];
        group.isThere = versions[MergeOurs] || versions[MergeTheirs];
        if (versions[MergeOurs] && versions[MergeTheirs]) {
            group.fork = qxMergeFields::merged(versions, qxMergeFields::ofGroup());
            continue;
        }
        const qxDocumentGroup *const one =
            versions[MergeOurs] ? versions[MergeOurs] : versions[MergeTheirs];
        if (one)
            group.fork = {*one, *one, {}};
        const int only = thing.onlySide();
        if (only == MergeBase)
            continue;
        group.isThere = false;
        if (!qxMergeFields::areSame(*versions[MergeBase], *one, qxMergeFields::ofGroup())
            || things.nameIn(MergeBase, thing) != things.nameIn(only, thing))
            noteRemoved(only, group);
    }
    noteClashes(things, m_groups);
}

void Merger::mergeSets()
{
    m_sets.resize(m_names.sets.things.size());
    for (std::size_t i = 0; i < m_sets.size(); ++i)
        mergeSet(int(i));
    noteClashes(m_names.sets, m_sets);
    for (std::size_t i = 0; i < m_sets.size(); ++i)
        nameSecond(m_names.sets, int(i), m_sets[i]);
}

void Merger::mergeSet(int number)
{
    const qxMergeThings &things = m_names.sets;
    const qxMergeThing &thing = things.things[std::size_t(number)];
    const auto versions = this->versions(&qxDocument::sets, thing);
    const qxDocumentSet *const base = versions[MergeBase];
    const qxDocumentSet *const ours = versions[MergeOurs];
    const qxDocumentSet *const theirs = versions[MergeTheirs];
    Set &set = m_sets[std::size_t(number)];
    set.isThere = ours || theirs;
    if (!set.isThere)
        return;
    if (ours && theirs) {
        if ((base && qxMergeFields::areSame(*base, *theirs))
            || qxMergeFields::areSame(*ours, *theirs)) {
            set.fork = {*ours, *ours, {}};
        } else if (base && qxMergeFields::areSame(*base, *ours)) {
            set.fork = {*theirs, *theirs, {}};
        } else {
            set.fork = qxMergeFields::merged(versions);
            mergeGroupOf(set, versions);
        }
        return;
    }
    const qxDocumentSet &one = ours ? *ours : *theirs;
    set.fork = {one, one, {}};
    const int only = thing.onlySide();
    if (only == MergeBase)
        return;
    set.isThere = false;
    if (!qxMergeFields::areAlike(*base, one)
        || things.nameIn(MergeBase, thing) != things.nameIn(only, thing))
        noteRemoved(only, set);
}

void Merger::mergeGroupOf(Set &set, const qxMergeFields::Versions<qxDocumentSet> &versions) const
{
    const auto text = [this](const qxDocumentSet &of) {
        return of.group < 0 ? QStringLiteral("")
                            : m_names.groups.things[std::size_t(of.group)].name;
    };
    const qxMergeField<qxDocumentSet> field{
        QStringLiteral("group"), QString(),
        [](const qxDocumentSet &one, const qxDocumentSet &other) {
            return one.group == other.group;
        },
        text, [](qxDocumentSet &to, const qxDocumentSet &from) { to.group = from.group; }};
    qxMergeFields::merge(field, versions, set.fork);
}

/// A group that only one side still has stays for sets that the merged document has in it.
void Merger::keepUsedGroups()
{
    for (Set &set : m_sets) {
        for (const qxDocumentSet *each : {&set.fork.ours, &set.fork.theirs}) {
            if (!set.isThere || each->group < 0)
                continue;
            Group &group = m_groups[std::size_t(each->group)];
            const int only = m_names.groups.things[std::size_t(each->group)].onlySide();
            if (!group.isThere && group.conflicts.isEmpty() && only != MergeBase)
                noteRemoved(only, group);
        }
    }
    for (std::size_t i = 0; i < m_groups.size(); ++i)
        nameSecond(m_names.groups, int(i), m_groups[i]);
}

/// What one side has removed and the other one's sets use anew comes back.
void Merger::noteUses()
{
    for (const qxMergeThing &thing : m_names.sets.things) {
        const auto versions = this->versions(&qxDocument::sets, thing);
        for (const int side : {MergeOurs, MergeTheirs}) {
            if (versions[std::size_t(side)])
                noteUses(*versions[std::size_t(side)], versions[MergeBase], side);
        }
    }
}

void Merger::noteUses(const qxDocumentSet &set, const qxDocumentSet *base, int side)
{
    static const qxDocumentSet none;
    const qxDocumentSet &before = base ? *base : none;
    qxReferenceLookup lookup(before);
    for (const qxDocumentReference &each : set.references) {
        const int place = lookup.find(each.kind, each.variant);
        if (place < 0 || before.references[std::size_t(place)].state != each.state)
            m_variants.use(each, side);
    }
}

void Merger::addGroups()
{
    const qxMergeThings &things = m_names.groups;
    m_groupOrder = qxMergeOrder::merged(things.numbers, int(m_groups.size()), byName(things));
    m_groupPlaces.assign(m_groups.size(), -1);
    std::vector<qxDocumentGroup> &groups = m_result.document.groups;
    for (const int number : m_groupOrder) {
        const Group &group = m_groups[std::size_t(number)];
        addConflicts(things, number, group);
        if (!group.isThere)
            continue;
        m_groupPlaces[std::size_t(number)] = int(groups.size());
        groups.push_back(group.fork.preferred(m_preference));
        groups.back().name = things.things[std::size_t(number)].name;
        if (!group.second.isEmpty()) {
            groups.push_back(group.fork.theirs);
            groups.back().name = group.second;
        }
    }
    for (qxDocumentGroup &each : groups)
        each.sets = 0;
}

/// The sets that are in that group on any side, in their merged order.
std::vector<int> Merger::ordered(const qxMergeOrder::Lists &lists)
{
    // Numbered anew, so that many small groups take no longer than a large one.
    std::vector<int> numbers;
    m_local.resize(m_sets.size(), -1);
    qxMergeOrder::Lists local;
    for (std::size_t side = 0; side < lists.size(); ++side) {
        for (const int number : lists[side]) {
            int &place = m_local[std::size_t(number)];
            if (place < 0) {
                place = int(numbers.size());
                numbers.push_back(number);
            }
            local[side].push_back(place);
        }
    }
    const qxMergeOrder::Before before = byName(m_names.sets);
    std::vector<int> order =
        qxMergeOrder::merged(local, int(numbers.size()), [&](int one, int other) {
            return before(numbers[std::size_t(one)], numbers[std::size_t(other)]);
        });
    for (const int number : numbers)
        m_local[std::size_t(number)] = -1;
    for (int &each : order)
        each = numbers[std::size_t(each)];
    return order;
}

void Merger::addSets()
{
    std::vector<qxMergeOrder::Lists> lists(m_groups.size() + 1); // those without a group are last
    for (const std::size_t side : {MergeBase, MergeOurs, MergeTheirs}) {
        const std::vector<qxDocumentSet> &sets = m_documents[side].sets;
        for (std::size_t i = 0; i < sets.size(); ++i) {
            const int group = sets[i].group < 0 ? int(m_groups.size()) : sets[i].group;
            lists[std::size_t(group)][side].push_back(m_names.sets.numbers[side][i]);
        }
    }
    m_placed.resize(m_result.document.groups.size() + 1);
    m_late.resize(m_placed.size());
    for (const int group : m_groupOrder)
        addSetsOf(group, ordered(lists[std::size_t(group)]));
    addSetsOf(-1, ordered(lists.back()));
    for (std::size_t place = 0; place < m_placed.size(); ++place) {
        const bool isInGroup = place + 1 < m_placed.size();
        for (auto *list : {&m_placed[place], &m_late[place]}) {
            for (qxDocumentSet &set : *list) {
                set.group = isInGroup ? int(place) : -1;
                m_result.document.sets.push_back(std::move(set));
            }
            if (isInGroup)
                m_result.document.groups[place].sets += int(list->size());
        }
    }
}

std::size_t Merger::placeOf(const qxDocumentSet &set) const
{
    const int place = set.group < 0 ? -1 : m_groupPlaces[std::size_t(set.group)];
    return place < 0 ? m_placed.size() - 1 : std::size_t(place);
}

void Merger::addSetsOf(int group, const std::vector<int> &order)
{
    for (const int number : order) {
        const Set &set = m_sets[std::size_t(number)];
        const qxDocumentSet &first = set.fork.preferred(m_preference);
        if (first.group != group)
            continue;
        addConflicts(m_names.sets, number, set);
        if (!set.isThere)
            continue;
        const std::size_t place = placeOf(first);
        m_placed[place].push_back(first);
        m_placed[place].back().name = m_names.sets.things[std::size_t(number)].name;
        if (set.second.isEmpty())
            continue;
        const std::size_t secondPlace = placeOf(set.fork.theirs);
        (secondPlace == place ? m_placed : m_late)[secondPlace].push_back(secondOf(set));
    }
}

qxDocumentSet Merger::secondOf(const Set &set) const
{
    qxDocumentSet second = set.fork.theirs;
    second.name = set.second;
    if (second.hotkey.text == set.fork.ours.hotkey.text)
        second.hotkey.text.clear();
    for (qxDocumentReference &each : second.references)
        each.variant = m_variants.second(each.kind, each.variant);
    return second;
}

/// What each key selects.
QMap<QString, QStringList> keysOf(const qxDocument &document)
{
    QMap<QString, QStringList> keys;
    for (const qxDocumentSet &each : document.sets) {
        if (!each.hotkey.text.isEmpty())
            keys[each.hotkey.text] << QStringLiteral("set \"%1\"").arg(each.name);
    }
    for (const qxDocumentVariant &variant : document.variants) {
        for (const qxDocumentOption &each : variant.options) {
            if (!each.hotkey.text.isEmpty())
                keys[each.hotkey.text] << QStringLiteral("state \"%1\" of %2 variant \"%3\"")
                                              .arg(each.name, variant.kind->word, variant.name);
        }
    }
    return keys;
}

QStringList noteKeys(const qxDocument &merged, const qxDocument &ours, const qxDocument &theirs)
{
    const QMap<QString, QStringList> before[] = {keysOf(ours), keysOf(theirs)};
    const QMap<QString, QStringList> now = keysOf(merged);
    QStringList notes;
    for (auto key = now.cbegin(); key != now.cend(); ++key) {
        const int most =
            std::max(before[0].value(key.key()).size(), before[1].value(key.key()).size());
        if (key->size() > 1 && key->size() > most)
            notes << QStringLiteral("%1 is now the key of %2")
                         .arg(key.key(), key->join(QStringLiteral(" and ")));
    }
    return notes;
}

} // namespace

qxDocumentMerge qxDocumentMerge::of(const qxDocument &base, const qxDocument &ours,
                                    const qxDocument &theirs, qxMergePreference preference)
{
    qxDocumentMerge result = Merger({{&base, &ours, &theirs}}, preference).merged();
    result.notes = noteKeys(result.document, ours, theirs);
    return result;
}
