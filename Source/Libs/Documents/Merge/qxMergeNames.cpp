#include "Merge/qxMergeNames.h"

#include "Compare/qxDocumentPairs.h"

#include <QHash>

#include <algorithm>

namespace {

typedef qxMergeThings::Name ScopedName;
typedef QPair<const qxVariantKind *, QString> VariantKey;

int scopeOf(const qxDocumentVariant &variant)
{
    const qxVariantKinds::List &all = qxVariantKinds::all();
    return int(std::find(all.begin(), all.end(), variant.kind) - all.begin());
}

template <class Thing>
int scopeOf(const Thing &)
{
    return 0;
}

template <class Thing>
std::vector<ScopedName> namesOf(const std::vector<Thing> &things)
{
    std::vector<ScopedName> names;
    names.reserve(things.size());
    for (const Thing &each : things)
        names.push_back({scopeOf(each), each.name});
    return names;
}

template <class List>
qxMergeThings thingsOf(const qxMergeNames::Documents &documents, List qxDocument::*list,
                       const qxPairing &ours, const qxPairing &theirs)
{
    return qxMergeThings(
        {{namesOf(documents[MergeBase]->*list), namesOf(documents[MergeOurs]->*list),
          namesOf(documents[MergeTheirs]->*list)}},
        {{{}, ours.after, theirs.after}});
}

/// The places of the states of base in another document.
std::vector<int> statePartners(const qxDocumentVariant &base, const qxDocumentVariant *side,
                               const qxDocumentPairs &pairs)
{
    std::vector<int> partners(base.options.size(), -1);
    QHash<QString, int> places;
    for (std::size_t i = 0; side && i < side->options.size(); ++i)
        places.insert(side->options[i].name, int(i));
    for (std::size_t i = 0; i < partners.size(); ++i) {
        const QString name = pairs.state(base.kind, base.name, base.options[i].name);
        partners[i] = places.value(name, -1);
    }
    return partners;
}

/// The merged names of what is called otherwise.
template <class Key>
class Renames {
public:
    void add(const Key &key, const QString &now, bool isSame)
    {
        if (isSame)
            m_names.remove(key);
        else
            m_names.insert(key, now);
    }
    bool isEmpty() const { return m_names.isEmpty(); }
    void apply(const Key &key, QString &name) const
    {
        const auto found = m_names.constFind(key);
        if (found != m_names.constEnd())
            name = *found;
    }

private:
    QHash<Key, QString> m_names;
};

/// What that side calls otherwise; of what it has no more, what base calls so.
template <class Key, class KeyOf>
void addRenames(Renames<Key> &renames, const qxMergeThings &things, int side, const KeyOf &keyOf)
{
    const auto add = [&](const qxMergeThing &thing, int in) {
        const QString &name = things.nameIn(in, thing).second;
        renames.add(keyOf(thing, name), thing.name, thing.name == name);
    };
    for (const qxMergeThing &thing : things.things) {
        if (!thing.isIn(side) && thing.isIn(MergeBase))
            add(thing, MergeBase);
    }
    for (const qxMergeThing &thing : things.things) {
        if (thing.isIn(side))
            add(thing, side);
    }
}

} // namespace

qxMergeNames::qxMergeNames(const Documents &documents, qxMergePreference preference)
    : qxMergeNames(documents, qxDocumentPairs(*documents[MergeBase], *documents[MergeOurs]),
                   qxDocumentPairs(*documents[MergeBase], *documents[MergeTheirs]), preference)
{
}

qxMergeNames::qxMergeNames(const Documents &documents, const qxDocumentPairs &ours,
                           const qxDocumentPairs &theirs, qxMergePreference preference)
    : groups(thingsOf(documents, &qxDocument::groups, ours.groups(), theirs.groups())),
      sets(thingsOf(documents, &qxDocument::sets, ours.sets(), theirs.sets())),
      variants(thingsOf(documents, &qxDocument::variants, ours.variants(), theirs.variants())),
      m_documents(documents)
{
    addStates(ours, theirs);
    settle(groups, -1, preference);
    settle(sets, -1, preference);
    settle(variants, -1, preference);
    for (std::size_t i = 0; i < states.size(); ++i)
        settle(states[i], int(i), preference);
}

const qxDocumentVariant *qxMergeNames::variantOf(int side, int number) const
{
    const qxMergeThing &thing = variants.things[std::size_t(number)];
    return thing.isIn(side)
        ? &m_documents[std::size_t(side)]->variants[std::size_t(thing.at[std::size_t(side)])]
        : nullptr;
}

void qxMergeNames::addStates(const qxDocumentPairs &ours, const qxDocumentPairs &theirs)
{
    states.reserve(variants.things.size());
    for (int i = 0; i < int(variants.things.size()); ++i) {
        qxMergeTriple<std::vector<ScopedName>> names;
        for (const int side : {MergeBase, MergeOurs, MergeTheirs}) {
            if (const qxDocumentVariant *const variant = variantOf(side, i))
                names[std::size_t(side)] = namesOf(variant->options);
        }
        qxMergeTriple<std::vector<int>> partners;
        if (const qxDocumentVariant *const base = variantOf(MergeBase, i))
            partners = {{{},
                         statePartners(*base, variantOf(MergeOurs, i), ours),
                         statePartners(*base, variantOf(MergeTheirs, i), theirs)}};
        states.emplace_back(std::move(names), partners);
    }
}

void qxMergeNames::settle(qxMergeThings &things, int variant, qxMergePreference preference)
{
    things.settleNames(preference, [&](int thing, int other) {
        clashes.push_back({&things, variant, thing, other});
    });
}

qxDocument qxMergeNames::translated(int side) const
{
    qxDocument document = *m_documents[std::size_t(side)];
    Renames<VariantKey> names;
    Renames<QPair<VariantKey, QString>> options;
    const auto kindOf = [this](const qxMergeThing &thing) {
        for (const std::size_t each : {MergeBase, MergeOurs, MergeTheirs}) {
            if (thing.isIn(int(each)))
                return m_documents[each]->variants[std::size_t(thing.at[each])].kind;
        }
        return static_cast<const qxVariantKind *>(nullptr);
    };
    addRenames(names, variants, side, [&](const qxMergeThing &thing, const QString &name) {
        return VariantKey(kindOf(thing), name);
    });
    for (std::size_t i = 0; i < variants.things.size(); ++i) {
        const qxMergeThing &thing = variants.things[i];
        if (!thing.isIn(side) && !thing.isIn(MergeBase))
            continue;
        const VariantKey variant(
            kindOf(thing), variants.nameIn(thing.isIn(side) ? side : int(MergeBase), thing).second);
        addRenames(options, states[i], side, [&](const qxMergeThing &, const QString &name) {
            return qMakePair(variant, name);
        });
    }
    for (qxDocumentSet &set : document.sets) {
        if (set.group >= 0)
            set.group = groups.numbers[std::size_t(side)][std::size_t(set.group)];
        for (qxDocumentReference &each : set.references) {
            if (!options.isEmpty())
                options.apply({{each.kind, each.variant}, each.state}, each.state);
            if (!names.isEmpty())
                names.apply({each.kind, each.variant}, each.variant);
        }
    }
    for (std::size_t i = 0; i < document.variants.size(); ++i) {
        qxDocumentVariant &variant = document.variants[i];
        const std::size_t number = std::size_t(variants.numbers[std::size_t(side)][i]);
        options.apply({{variant.kind, variant.name}, variant.standard.text}, variant.standard.text);
        for (std::size_t j = 0; j < variant.options.size(); ++j)
            variant.options[j].name =
                states[number]
                    .things[std::size_t(states[number].numbers[std::size_t(side)][j])]
                    .name;
        variant.name = variants.things[number].name;
    }
    return document;
}
