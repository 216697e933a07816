#include "Merge/qxMergeVariants.h"

#include "Merge/qxMergeOrder.h"

#include <algorithm>

namespace {

QString orNull(const qxDocumentOption *option)
{
    if (!option)
        return QString();
    return option->hotkey.text.isNull() ? QStringLiteral("") : option->hotkey.text;
}

/// In whatever order.
bool areSameStates(const qxDocumentVariant &one, const qxDocumentVariant &other)
{
    const auto keys = [](const qxDocumentVariant &variant) {
        std::vector<QPair<QString, QString>> all;
        for (const qxDocumentOption &each : variant.options)
            all.push_back({each.name, each.hotkey.text});
        std::sort(all.begin(), all.end());
        return all;
    };
    return keys(one) == keys(other);
}

} // namespace

qxMergeVariants::qxMergeVariants(const Documents &documents, qxMergeNames &names,
                                 qxMergePreference preference)
    : m_documents(documents), m_names(names), m_preference(preference),
      m_variants(names.variants.things.size())
{
    for (int i = 0; i < int(m_variants.size()); ++i)
        merge(i);
    noteClashes();
    for (int i = 0; i < int(m_variants.size()); ++i)
        fork(i);
}

const qxDocumentVariant *qxMergeVariants::at(int side, int number) const
{
    const qxMergeThing &thing = m_names.variants.things[std::size_t(number)];
    return thing.isIn(side)
        ? &m_documents[std::size_t(side)].variants[std::size_t(thing.at[std::size_t(side)])]
        : nullptr;
}

bool qxMergeVariants::isChanged(int number, int side) const
{
    const qxMergeThing &thing = m_names.variants.things[std::size_t(number)];
    const qxDocumentVariant &base = *at(MergeBase, number);
    const qxDocumentVariant &now = *at(side, number);
    return m_names.variants.nameIn(MergeBase, thing) != m_names.variants.nameIn(side, thing)
        || !areSameStates(base, now)
        || !qxMergeFields::areSame(base, now, qxMergeFields::ofVariant());
}

void qxMergeVariants::merge(int number)
{
    const qxMergeThing &thing = m_names.variants.things[std::size_t(number)];
    Variant &variant = m_variants[std::size_t(number)];
    variant.isThere = thing.isIn(MergeOurs) || thing.isIn(MergeTheirs);
    if (!variant.isThere)
        return;
    const int only = thing.onlySide();
    if (only != MergeBase) {
        mergeOnly(number, only);
        if (isChanged(number, only)) {
            removed(number, only, QString());
            variant.isThere = qxMergeKeeps(m_preference, only);
        } else {
            variant.isThere = false;
            m_hasRemoved = true;
        }
    } else if (!thing.isIn(MergeOurs) || !thing.isIn(MergeTheirs)) {
        mergeOnly(number, thing.isIn(MergeOurs) ? MergeOurs : MergeTheirs);
    } else {
        variant.fork = qxMergeFields::merged<qxDocumentVariant>(
            {{at(MergeBase, number), at(MergeOurs, number), at(MergeTheirs, number)}},
            qxMergeFields::ofVariant());
        mergeStates(number);
    }
    m_numbers.insert({variant.fork.ours.kind, thing.name}, number);
}

/// What one side alone has.
void qxMergeVariants::mergeOnly(int number, int side)
{
    Variant &variant = m_variants[std::size_t(number)];
    variant.fork = {*at(side, number), *at(side, number), {}};
    for (const qxDocumentOption &each : variant.fork.ours.options)
        variant.states.push_back({true, true, each, each, MergeBase});
}

void qxMergeVariants::mergeStates(int number)
{
    const qxMergeThings &things = m_names.states[std::size_t(number)];
    const std::vector<int> order =
        qxMergeOrder::merged(things.numbers, int(things.things.size()), [&](int one, int other) {
            return things.things[std::size_t(one)].name < things.things[std::size_t(other)].name;
        });
    for (const int state : order)
        mergeState(number, things.things[std::size_t(state)]);
}

void qxMergeVariants::mergeState(int number, const qxMergeThing &thing)
{
    Variant &variant = m_variants[std::size_t(number)];
    qxMergeTriple<const qxDocumentOption *> options{};
    for (const int side : {MergeBase, MergeOurs, MergeTheirs}) {
        if (thing.isIn(side))
            options[std::size_t(side)] =
                &at(side, number)->options[std::size_t(thing.at[std::size_t(side)])];
    }
    const qxDocumentOption *const ours = options[MergeOurs];
    const qxDocumentOption *const theirs = options[MergeTheirs];
    if (!ours && !theirs)
        return;
    State state{true, true, *(ours ? ours : theirs), *(theirs ? theirs : ours), thing.onlySide()};
    const bool isNew = !at(MergeBase, number); // with all its states
    qxMergeConflict conflict;
    conflict.field = QStringLiteral("key");
    conflict.entry = thing.name;
    conflict.texts = {{orNull(options[MergeBase]), orNull(ours), orNull(theirs)}};
    if (state.onlySide != MergeBase) {
        const qxMergeThings &things = m_names.states[std::size_t(number)];
        const qxDocumentOption &kept = *(ours ? ours : theirs);
        const bool changed = kept.hotkey.text != options[MergeBase]->hotkey.text
            || things.nameIn(MergeBase, thing) != things.nameIn(state.onlySide, thing);
        state.isInOurs = state.isInTheirs = changed && qxMergeKeeps(m_preference, state.onlySide);
        if (changed)
            removed(number, state.onlySide, thing.name);
        else
            m_hasRemoved = true;
    } else if (isNew && !(ours && theirs)) {
        state.isInOurs = ours;
        state.isInTheirs = theirs;
        conflict.field = QStringLiteral("state");
        variant.fork.conflicts.push_back(conflict);
    } else if (ours && theirs && ours->hotkey.text != theirs->hotkey.text) {
        const QString *const base = options[MergeBase] ? &options[MergeBase]->hotkey.text : nullptr;
        if (base && ours->hotkey.text == *base)
            state.ours.hotkey = theirs->hotkey;
        else if (base && theirs->hotkey.text == *base)
            state.theirs.hotkey = ours->hotkey;
        else
            variant.fork.conflicts.push_back(conflict);
    }
    variant.states.push_back(state);
}

/// Notes that the side that `only` is not has removed something.
void qxMergeVariants::removed(int number, int only, const QString &state)
{
    Variant &variant = m_variants[std::size_t(number)];
    qxMergeConflict conflict = qxMergeConflict::removed(only);
    if (!state.isNull()) {
        conflict.field = QStringLiteral("state");
        conflict.entry = state;
    }
    variant.conflicts.push_back(conflict);
}

void qxMergeVariants::bringBack(int number, const QString &name, int side)
{
    for (State &state : m_variants[std::size_t(number)].states) {
        if (state.ours.name != name || state.isInOurs || state.isInTheirs || state.onlySide != side)
            continue;
        removed(number, side, name);
        state.isInOurs = state.isInTheirs = qxMergeKeeps(m_preference, side);
        state.onlySide = MergeBase; // it is decided
    }
}

/// A state that one side has removed and the other made the default one comes back.
void qxMergeVariants::keepStandard(int number)
{
    const qxDocumentVariant *const base = at(MergeBase, number);
    for (const int side : {MergeOurs, MergeTheirs}) {
        const qxDocumentVariant *const now = at(side, number);
        if (base && now && now->standard.text != base->standard.text)
            bringBack(number, now->standard.text, side);
    }
}

void qxMergeVariants::noteClashes()
{
    for (const qxMergeNames::Clash &clash : m_names.clashes) {
        if (clash.things != &m_names.variants && clash.variant < 0)
            continue;
        Variant &variant = m_variants[std::size_t(clash.variant < 0 ? clash.thing : clash.variant)];
        const qxMergeConflict conflict = clash.things->conflictOf(clash.thing, clash.other);
        if (clash.variant >= 0)
            noteStates(variant, clash, conflict);
        else if (clash.thing == clash.other)
            variant.fork.conflicts.push_back(conflict);
        else
            variant.conflicts.push_back(conflict);
    }
}

/// Both names of a state are kept, the one of theirs without a key.
void qxMergeVariants::noteStates(Variant &variant, const qxMergeNames::Clash &clash,
                                 qxMergeConflict conflict)
{
    qxMergeThings &things = *clash.things;
    conflict.field = QStringLiteral("state");
    conflict.entry = things.things[std::size_t(clash.thing)].name;
    conflict.other.swap(conflict.second);
    const bool hasTwoNames = clash.thing == clash.other;
    if (hasTwoNames && m_preference == qxMergePreference::Both && variant.isThere) {
        conflict.other = things.freeName({0, conflict.texts[MergeTheirs]});
        const auto place =
            std::find_if(variant.states.begin(), variant.states.end(),
                         [&](const State &each) { return each.ours.name == conflict.entry; });
        State state{true, true, {}, {}, MergeBase};
        state.ours.name = state.theirs.name = conflict.other;
        variant.states.insert(place == variant.states.end() ? place : place + 1, state);
    }
    variant.conflicts.push_back(conflict);
}

/// Finds a name for the version of theirs, if there is one.
void qxMergeVariants::fork(int number)
{
    Variant &variant = m_variants[std::size_t(number)];
    if (!variant.isThere)
        return;
    keepStandard(number);
    if (!variant.fork.isForked() || m_preference != qxMergePreference::Both)
        return;
    const qxMergeThing &thing = m_names.variants.things[std::size_t(number)];
    const qxMergeThings::Name &name = m_names.variants.nameIn(MergeTheirs, thing);
    const bool hasTwoNames = std::any_of(
        variant.fork.conflicts.begin(), variant.fork.conflicts.end(),
        [](const qxMergeConflict &each) { return each.field == QLatin1String("name"); });
    variant.second =
        m_names.variants.otherName({name.first, hasTwoNames ? name.second : thing.name});
}

QString qxMergeVariants::second(const qxVariantKind *kind, const QString &name) const
{
    const int number = m_numbers.value({kind, name}, -1);
    const QString second = number < 0 ? QString() : m_variants[std::size_t(number)].second;
    return second.isEmpty() ? name : second;
}

void qxMergeVariants::use(const qxDocumentReference &entry, int side)
{
    const int number = m_numbers.value({entry.kind, entry.variant}, -1);
    if (number < 0)
        return;
    Variant &variant = m_variants[std::size_t(number)];
    if (!variant.isThere && m_names.variants.things[std::size_t(number)].onlySide() == side) {
        variant.isThere = qxMergeKeeps(m_preference, side);
        if (variant.conflicts.isEmpty())
            removed(number, side, QString());
    }
    bringBack(number, entry.state, side);
}

std::vector<int> qxMergeVariants::order() const
{
    const auto nameOf = [this](int number) {
        return m_names.variants.things[std::size_t(number)].name;
    };
    return qxMergeOrder::merged(m_names.variants.numbers, int(m_variants.size()),
                                [&](int one, int other) { return nameOf(one) < nameOf(other); });
}

std::vector<qxDocumentVariant> qxMergeVariants::result() const
{
    std::vector<qxDocumentVariant> all;
    for (const int number : order()) {
        const Variant &variant = m_variants[std::size_t(number)];
        if (!variant.isThere)
            continue;
        const bool isTheirs = m_preference == qxMergePreference::Theirs;
        all.push_back(variant.fork.preferred(m_preference));
        all.back().name = m_names.variants.things[std::size_t(number)].name;
        all.back().options.clear();
        for (const State &state : variant.states) {
            if (isTheirs ? state.isInTheirs : state.isInOurs)
                all.back().options.push_back(isTheirs ? state.theirs : state.ours);
        }
        if (variant.second.isEmpty())
            continue;
        all.push_back(variant.fork.theirs);
        all.back().name = variant.second;
        all.back().options.clear();
        for (const State &state : variant.states) {
            if (!state.isInTheirs)
                continue;
            all.back().options.push_back(state.theirs);
            if (state.isInOurs && state.ours.hotkey.text == state.theirs.hotkey.text)
                all.back().options.back().hotkey.text.clear();
        }
    }
    const qxVariantKinds::List &kinds = qxVariantKinds::all();
    const auto place = [&kinds](const qxDocumentVariant &variant) {
        return std::find(kinds.begin(), kinds.end(), variant.kind);
    };
    std::stable_sort(all.begin(), all.end(),
                     [&](const auto &one, const auto &other) { return place(one) < place(other); });
    return all;
}

QVector<qxMergeConflict> qxMergeVariants::conflicts() const
{
    QVector<qxMergeConflict> all;
    for (const int number : order()) {
        const Variant &variant = m_variants[std::size_t(number)];
        QVector<qxMergeConflict> own = variant.fork.conflicts;
        for (qxMergeConflict &each : own)
            each.second = variant.second;
        own += variant.conflicts;
        for (qxMergeConflict &each : own) {
            each.thing = qxMergeConflict::Variant;
            each.kind = variant.fork.ours.kind;
            each.name = m_names.variants.things[std::size_t(number)].name;
        }
        all += own;
    }
    return all;
}
