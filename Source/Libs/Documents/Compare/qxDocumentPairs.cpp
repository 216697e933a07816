#include "Compare/qxDocumentPairs.h"

#include "Compare/qxLikeness.h"
#include "Compare/qxReferenceLookup.h"

#include <QMap>
#include <QSet>

#include <algorithm>

namespace {

/// What a feature is about. Names of a set have the numbers from Name on; what is of one kind of
/// variants has those from the kind's tag on.
enum Feature { Base, State, Key, Use, Kind, Entry, Member, Text, Snapshot, Value, Clipping, Name };

int tagOf(const qxVariantKind *kind)
{
    const qxVariantKinds::List &all = qxVariantKinds::all();
    return (Name + qxNameLists) * int(std::find(all.begin(), all.end(), kind) - all.begin());
}

/// Pairs what has the same key.
template <class Thing, class KeyOf>
qxPairing byName(const std::vector<Thing> &before, const std::vector<Thing> &after,
                 const KeyOf &keyOf)
{
    QHash<decltype(keyOf(after.front())), int> places;
    places.reserve(int(after.size()));
    for (const Thing &each : after)
        places.insert(keyOf(each), places.size());
    qxPairing pairing{{}, std::vector<int>(after.size(), -1)};
    pairing.after.reserve(before.size());
    for (const Thing &each : before) {
        const int place = places.value(keyOf(each), -1);
        if (place >= 0)
            pairing.before[std::size_t(place)] = int(pairing.after.size());
        pairing.after.push_back(place);
    }
    return pairing;
}

/// Those that have no partner, without their features. `laterPlace` gives that of one that has.
template <class LaterPlace>
std::vector<qxLikenessThing> alone(const std::vector<int> &partners, const LaterPlace &laterPlace)
{
    std::vector<qxLikenessThing> things;
    int neighbour = -1, turn = 0;
    for (int place = 0; place < int(partners.size()); ++place) {
        if (partners[std::size_t(place)] < 0) {
            things.push_back({place, neighbour, turn++, {}});
        } else {
            neighbour = laterPlace(place);
            turn = 0;
        }
    }
    return things;
}

/// Pairs those alone that are alike. `tell` adds the features of a thing of the earlier document
/// when asked with true.
template <class Tell>
void pairAlike(qxPairing &pairing, const Tell &tell)
{
    auto before =
        alone(pairing.after, [&](int place) { return pairing.after[std::size_t(place)]; });
    auto after = alone(pairing.before, [](int place) { return place; });
    if (before.empty() || after.empty())
        return;
    for (qxLikenessThing &each : before)
        tell(true, std::size_t(each.place), each.features);
    for (qxLikenessThing &each : after)
        tell(false, std::size_t(each.place), each.features);
    for (const qxLikenessPair &pair : qxLikeness::pairs(before, after)) {
        pairing.after[std::size_t(pair.before)] = pair.after;
        pairing.before[std::size_t(pair.after)] = pair.before;
    }
}

void tellVariant(const qxDocumentVariant &variant, qxFeatures &features)
{
    const int kind = tagOf(variant.kind);
    features.add(kind + Kind, QString());
    for (std::size_t i = 0; i <= variant.options.size() && !variant.base.isEmpty(); ++i)
        features.add(kind + Base, variant.base);
    for (const qxDocumentOption &each : variant.options) {
        features.add(kind + State, each.name);
        if (!each.hotkey.text.isEmpty())
            features.add(kind + Key, each.hotkey.text);
    }
}

void tellTexts(const std::vector<qxDocumentText> &texts, int tag, qxFeatures &features)
{
    for (const qxDocumentText &each : texts)
        features.add(tag, each.text, each.more);
}

/// What a set has that is the same in all documents; its entries come on top.
void tellSet(const qxDocumentSet &set, qxFeatures &features)
{
    for (const QString &text : {set.comment, set.defaultViewpoint, set.hotkey.text}) {
        if (!text.isEmpty())
            features.add(Text, text);
    }
    if (!set.preview.isEmpty())
        features.add(Text, QString::fromLatin1(set.preview));
    for (const QString &line : set.script.text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        features.add(Text, line);
    for (int list = 0; list < qxNameLists; ++list)
        tellTexts(set.of(qxNameList(list)), Name + list, features);
    tellTexts(set.snapshots, Snapshot, features);
    tellTexts(set.values, Value, features);
    if (set.clipping.clipState == qxAnalyzerVariant::NoChange)
        return;
    for (const qxClippingField &each : qxClippingField::all())
        features.add(Clipping, each.attribute, each.text(set.clipping));
}

/// Which of two lists of states are on one side alone, and at the place of which.
struct OpenStates {
    QHash<QString, QString> atPlace; ///< the new one at the place of an old one; empty for none
    QSet<QString> added;
};

OpenStates openStates(const qxDocumentVariant &before, const qxDocumentVariant &after)
{
    const auto nameOf = [](const qxDocumentOption &option) { return option.name; };
    const qxPairing names = byName(before.options, after.options, nameOf);
    OpenStates open;
    QHash<QPair<int, int>, QString> places;
    for (const qxLikenessThing &each : alone(names.before, [](int place) { return place; })) {
        const QString &name = after.options[std::size_t(each.place)].name;
        places.insert({each.neighbour, each.turn}, name);
        open.added.insert(name);
    }
    const auto laterPlace = [&](int place) { return names.after[std::size_t(place)]; };
    for (const qxLikenessThing &each : alone(names.after, laterPlace))
        open.atPlace.insert(before.options[std::size_t(each.place)].name,
                            places.value({each.neighbour, each.turn}));
    return open;
}

} // namespace

/// The states of a variant that are on one side alone, and what says which of them are the same.
struct qxDocumentPairs::States {
    struct Witnesses {
        int all = 0;
        QMap<QString, int> ofNames; ///< so many of them say that the state has that name now
    };

    void count(const QString &state, const QString &now)
    {
        const auto witnesses = old.find(state);
        if (witnesses == old.end())
            return;
        ++witnesses->all;
        if (added.contains(now))
            ++witnesses->ofNames[now];
    }

    QMap<QString, Witnesses> old;
    QSet<QString> added;
};

qxDocumentPairs::qxDocumentPairs(const qxDocument &before, const qxDocument &after)
    : m_before(before), m_after(after)
{
    const auto nameOf = [](const auto &thing) { return thing.name; };
    m_groups = byName(before.groups, after.groups, nameOf);
    m_sets = byName(before.sets, after.sets, nameOf);
    m_variants =
        byName(before.variants, after.variants, [](const qxDocumentVariant &each) -> Variant {
            return {each.kind, each.name};
        });
    // What is named comes before what names it.
    pairVariants();
    pairStates();
    pairSets();
    pairStates(); // which sets that are renamed themselves tell more of
    pairGroups();
}

void qxDocumentPairs::pairVariants()
{
    // The sets that are sure to be the same tell variants apart that look alike. Only variants of
    // the document matter that have no partner yet.
    typedef std::vector<std::pair<int, QString>> Uses;
    QHash<Variant, Uses> uses[2];
    const std::vector<int> *const partners[] = {&m_variants.before, &m_variants.after};
    const qxDocument *const documents[] = {&m_after, &m_before};
    for (const int side : {0, 1}) {
        int place = 0;
        for (const qxDocumentVariant &each : documents[side]->variants) {
            if ((*partners[side])[std::size_t(place++)] < 0)
                uses[side].insert({each.kind, each.name}, {});
        }
    }
    if (uses[0].isEmpty() || uses[1].isEmpty())
        return;
    for (int set = 0; set < int(m_after.sets.size()); ++set) {
        const int partner = m_sets.before[std::size_t(set)];
        const int places[] = {set, partner};
        for (int side = 0; side < 2 && partner >= 0; ++side) {
            for (const auto &each : documents[side]->sets[std::size_t(places[side])].references) {
                const auto found = uses[side].find({each.kind, each.variant});
                if (found != uses[side].end())
                    found->push_back({set, each.state});
            }
        }
    }
    pairAlike(m_variants, [&](bool isBefore, std::size_t place, qxFeatures &features) {
        const qxDocumentVariant &variant = documents[isBefore]->variants[place];
        tellVariant(variant, features);
        const int use = tagOf(variant.kind) + Use;
        for (const auto &[set, state] : uses[isBefore][{variant.kind, variant.name}]) {
            features.add(use, set);
            features.add(use, set, state);
        }
    });
    for (std::size_t i = 0; i < m_before.variants.size(); ++i) {
        const qxDocumentVariant &old = m_before.variants[i];
        const int now = m_variants.after[i];
        if (now >= 0 && m_after.variants[std::size_t(now)].name != old.name)
            m_renamed.insert({old.kind, old.name}, m_after.variants[std::size_t(now)].name);
    }
}

void qxDocumentPairs::pairStates()
{
    QHash<Variant, States> open;
    for (std::size_t i = 0; i < m_before.variants.size(); ++i) {
        if (m_variants.after[i] < 0)
            continue;
        const qxDocumentVariant &old = m_before.variants[i];
        const qxDocumentVariant &now = m_after.variants[std::size_t(m_variants.after[i])];
        const OpenStates states = openStates(old, now);
        if (states.atPlace.isEmpty() || states.added.isEmpty())
            continue;
        QHash<QString, QString> keys;
        for (const qxDocumentOption &each : now.options) {
            if (states.added.contains(each.name))
                keys.insert(each.hotkey.text, each.name);
        }
        States &witnesses = open[{old.kind, old.name}];
        witnesses.added = states.added;
        for (const qxDocumentOption &each : old.options) {
            if (!states.atPlace.contains(each.name))
                continue;
            witnesses.old.insert(each.name, {});
            witnesses.count(each.name, states.atPlace[each.name]);
            if (!each.hotkey.text.isEmpty())
                witnesses.count(each.name, keys.value(each.hotkey.text));
        }
        witnesses.count(old.standard.text, now.standard.text);
    }
    if (open.isEmpty())
        return;
    countUses(open);
    m_renamedStates.clear();
    for (auto variant = open.cbegin(); variant != open.cend(); ++variant) {
        QMap<QString, QString> olds; // by the new names, which are those of one state each
        for (auto old = variant->old.cbegin(); old != variant->old.cend(); ++old) {
            for (auto now = old->ofNames.cbegin(); now != old->ofNames.cend(); ++now) {
                if (2 * *now > old->all && !olds.contains(now.key()))
                    olds.insert(now.key(), old.key());
            }
        }
        for (auto now = olds.cbegin(); now != olds.cend(); ++now)
            m_renamedStates.insert({variant.key(), *now}, now.key());
    }
}

/// Has the sets that are in both documents say what they select now.
void qxDocumentPairs::countUses(QHash<Variant, States> &open) const
{
    for (std::size_t i = 0; i < m_before.sets.size(); ++i) {
        if (m_sets.after[i] < 0)
            continue;
        const qxDocumentSet &after = m_after.sets[std::size_t(m_sets.after[i])];
        qxReferenceLookup lookup(after);
        for (const qxDocumentReference &each : m_before.sets[i].references) {
            const auto states = open.find({each.kind, each.variant});
            if (states == open.end())
                continue;
            const int now = lookup.find(each.kind, variant(each.kind, each.variant));
            if (now >= 0)
                states->count(each.state, after.references[std::size_t(now)].state);
        }
    }
}

void qxDocumentPairs::pairSets()
{
    pairAlike(m_sets, [&](bool isBefore, std::size_t place, qxFeatures &features) {
        const qxDocumentSet &set = (isBefore ? m_before : m_after).sets[place];
        tellSet(set, features);
        for (const qxDocumentReference &each : set.references) {
            const int entry = tagOf(each.kind) + Entry;
            const QString name = isBefore ? variant(each.kind, each.variant) : each.variant;
            features.add(entry, name);
            features.add(entry, name,
                         isBefore ? state(each.kind, each.variant, each.state) : each.state);
        }
    });
}

void qxDocumentPairs::pairGroups()
{
    std::vector<std::vector<int>> members[2]; // their sets, by their places in the later document
    members[0].resize(m_after.groups.size());
    members[1].resize(m_before.groups.size());
    for (std::size_t i = 0; i < m_after.sets.size(); ++i) {
        if (m_after.sets[i].group >= 0)
            members[0][std::size_t(m_after.sets[i].group)].push_back(int(i));
    }
    for (std::size_t i = 0; i < m_before.sets.size(); ++i) {
        if (m_before.sets[i].group >= 0)
            members[1][std::size_t(m_before.sets[i].group)].push_back(m_sets.after[i]);
    }
    pairAlike(m_groups, [&](bool isBefore, std::size_t place, qxFeatures &features) {
        for (const int set : members[isBefore][place])
            features.add(Member, set);
        const QString &comment = (isBefore ? m_before : m_after).groups[place].comment;
        if (!comment.isEmpty())
            features.add(Text, comment);
    });
}

QString qxDocumentPairs::variant(const qxVariantKind *kind, const QString &name) const
{
    return m_renamed.isEmpty() ? name : m_renamed.value({kind, name}, name);
}

QString qxDocumentPairs::state(const qxVariantKind *kind, const QString &variant,
                               const QString &name) const
{
    return m_renamedStates.isEmpty() ? name : m_renamedStates.value({{kind, variant}, name}, name);
}
