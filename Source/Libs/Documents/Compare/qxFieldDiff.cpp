#include "Compare/qxFieldDiff.h"

#include "Compare/qxDocumentPairs.h"
#include "Compare/qxReferenceLookup.h"
#include "qxFieldWords.h"

#include <algorithm>

namespace {

QString wordOf(bool flag)
{
    return flag ? QStringLiteral("true") : QStringLiteral("false");
}

/// Pairs entries of two lists that have the same text, which are unique in each.
template <class Entry, class NameBefore, class NameAfter>
qxPairing pairingOf(const std::vector<Entry> &before, const std::vector<Entry> &after,
                    const NameBefore &nameBefore, const NameAfter &nameAfter)
{
    QHash<QString, int> places;
    for (const Entry &each : after)
        places.insert(nameAfter(each), places.size());
    qxPairing pairing{{}, std::vector<int>(after.size(), -1)};
    for (const Entry &each : before) {
        const int place = places.value(nameBefore(each), -1);
        if (place >= 0)
            pairing.before[std::size_t(place)] = int(pairing.after.size());
        pairing.after.push_back(place);
    }
    return pairing;
}

/// Entries are the same when their variants are. One that keeps the name of a variant that is
/// called otherwise now is what it was as well.
qxPairing pairingOf(const qxDocumentPairs &pairs, const qxDocumentSet &before,
                    const qxDocumentSet &after)
{
    qxPairing pairing{std::vector<int>(before.references.size(), -1),
                      std::vector<int>(after.references.size(), -1)};
    for (const bool isFollowing : {true, false}) {
        qxReferenceLookup lookup(after);
        for (std::size_t i = 0; i < before.references.size(); ++i) {
            const qxDocumentReference &each = before.references[i];
            if (pairing.after[i] >= 0)
                continue;
            const int place = lookup.find(
                each.kind, isFollowing ? pairs.variant(each.kind, each.variant) : each.variant);
            if (place < 0 || pairing.before[std::size_t(place)] >= 0)
                continue;
            pairing.after[i] = place;
            pairing.before[std::size_t(place)] = int(i);
        }
    }
    return pairing;
}

bool areSame(const qxDocumentPairs &pairs, const qxDocumentReference &before,
             const qxDocumentReference &after)
{
    return before.kind == after.kind && pairs.variant(before.kind, before.variant) == after.variant
        && (before.state == after.state
            || pairs.state(before.kind, before.variant, before.state) == after.state);
}

bool areSame(const std::vector<qxDocumentText> &before, const std::vector<qxDocumentText> &after)
{
    return std::equal(before.begin(), before.end(), after.begin(), after.end(),
                      [](const qxDocumentText &one, const qxDocumentText &other) {
                          return one.text == other.text && one.more == other.more;
                      });
}

QString textOf(const qxDocumentText &text)
{
    return text.text;
}

} // namespace

void qxFieldDiff::add(QLatin1String field, qxDifferenceSort sort, const QString &name,
                      const QString &before, const QString &after)
{
    fields.push_back({field, sort, name, before, after});
}

void qxFieldDiff::text(const char *field, const QString &before, const QString &after,
                       const QString &name)
{
    if (before == after)
        return;
    add(QLatin1String(field),
        before.isEmpty()      ? qxDifferenceSort::Added
            : after.isEmpty() ? qxDifferenceSort::Removed
                              : qxDifferenceSort::Changed,
        name, before, after);
}

void qxFieldDiff::flag(const char *field, bool before, bool after, const QString &name)
{
    if (before != after)
        text(field, wordOf(before), wordOf(after), name);
}

void qxFieldDiff::moved(QLatin1String field, const QString &name, const NameOf &nameBefore,
                        const NameOf &nameAfter, const qxPairedEntry &entry)
{
    add(field, qxDifferenceSort::Moved, name,
        entry.before > 0 ? nameBefore(entry.before - 1) : QString(),
        entry.after > 0 ? nameAfter(entry.after - 1) : QString());
}

void qxFieldDiff::group(const qxDocumentGroup &before, const qxDocumentGroup &after)
{
    text("comment", before.comment, after.comment);
    flag("visible", before.isVisible, after.isVisible);
}

void qxFieldDiff::set(const qxDocumentPairs &pairs, const qxDocumentSet &before,
                      const qxDocumentSet &after)
{
    text("comment", before.comment, after.comment);
    text("defaultViewpoint", before.defaultViewpoint, after.defaultViewpoint);
    text("hotkey", before.hotkey.text, after.hotkey.text);
    flag("sequential", before.isSequential, after.isSequential);
    text("script", before.script.text, after.script.text);
    if (before.preview != after.preview)
        text("preview", QString::fromLatin1(before.preview), QString::fromLatin1(after.preview));
    references(pairs, before, after);
    for (int list = 0; list < qxNameLists; ++list)
        names(qxFieldWords::of(qxNameList(list)), before.of(qxNameList(list)),
              after.of(qxNameList(list)));
    for (int what = 0; what < qxInclusions; ++what)
        flag("include", before.includes(qxInclusion(what)), after.includes(qxInclusion(what)),
             qxFieldWords::of(qxInclusion(what)));
    texts("snapshot", before.snapshots, after.snapshots);
    texts("value", before.values, after.values);
    // Of a set that comes or goes, settings of clipping that it does not change tell nothing.
    const bool isInBoth = !before.name.isEmpty() && !after.name.isEmpty();
    if (isInBoth || before.clipping.clipState != after.clipping.clipState)
        clipping(before.clipping, after.clipping);
}

void qxFieldDiff::references(const qxDocumentPairs &pairs, const qxDocumentSet &before,
                             const qxDocumentSet &after)
{
    // Most sets are the same, and found to be it without a search.
    if (std::equal(before.references.begin(), before.references.end(), after.references.begin(),
                   after.references.end(),
                   [&](const auto &one, const auto &other) { return areSame(pairs, one, other); }))
        return;
    const auto nameIn = [](const qxDocumentSet &set) {
        return [&set](int place) {
            const qxDocumentReference &entry = set.references[std::size_t(place)];
            const bool isOfKind = set.references[std::size_t(place) + 1].kind == entry.kind;
            return isOfKind ? entry.variant : QString();
        };
    };
    for (const qxPairedEntry &entry : qxPairedEntries(pairingOf(pairs, before, after))) {
        const auto &own = entry.after >= 0 ? after.references[std::size_t(entry.after)]
                                           : before.references[std::size_t(entry.before)];
        const QLatin1String field = own.kind->word;
        if (entry.before < 0) {
            add(field, qxDifferenceSort::Added, own.variant, QString(), own.state);
        } else if (entry.after < 0) {
            add(field, qxDifferenceSort::Removed, own.variant, own.state);
        } else {
            const QString &state = before.references[std::size_t(entry.before)].state;
            if (own.state != state
                && own.state
                    != pairs.state(own.kind, before.references[std::size_t(entry.before)].variant,
                                   state))
                add(field, qxDifferenceSort::Changed, own.variant, state, own.state);
        }
        if (entry.isMoved)
            moved(field, own.variant, nameIn(before), nameIn(after), entry);
    }
}

void qxFieldDiff::names(QLatin1String word, const std::vector<qxDocumentText> &before,
                        const std::vector<qxDocumentText> &after)
{
    if (areSame(before, after))
        return;
    const auto nameIn = [](const std::vector<qxDocumentText> &list) {
        return [&list](int place) { return list[std::size_t(place)].text; };
    };
    for (const qxPairedEntry &entry : qxPairedEntries(pairingOf(before, after, textOf, textOf))) {
        if (entry.before < 0)
            add(word, qxDifferenceSort::Added, nameIn(after)(entry.after));
        else if (entry.after < 0)
            add(word, qxDifferenceSort::Removed, nameIn(before)(entry.before));
        else if (entry.isMoved)
            moved(word, nameIn(after)(entry.after), nameIn(before), nameIn(after), entry);
    }
}

void qxFieldDiff::texts(const char *field, const std::vector<qxDocumentText> &before,
                        const std::vector<qxDocumentText> &after)
{
    if (areSame(before, after))
        return;
    const QLatin1String word(field);
    for (const qxPairedEntry &entry : qxPairedEntries(pairingOf(before, after, textOf, textOf))) {
        const qxDocumentText *const old =
            entry.before < 0 ? nullptr : &before[std::size_t(entry.before)];
        const qxDocumentText *const now =
            entry.after < 0 ? nullptr : &after[std::size_t(entry.after)];
        if (!old)
            add(word, qxDifferenceSort::Added, now->text, QString(), now->more);
        else if (!now)
            add(word, qxDifferenceSort::Removed, old->text, old->more);
        else if (old->more != now->more)
            add(word, qxDifferenceSort::Changed, now->text, old->more, now->more);
    }
}

void qxFieldDiff::clipping(const qxAnalyzerVariant &before, const qxAnalyzerVariant &after)
{
    for (const qxClippingField &each : qxClippingField::all())
        text("clipping", each.text(before), each.text(after), each.attribute);
}

void qxFieldDiff::variant(const qxDocumentPairs &pairs, const qxDocumentVariant &before,
                          const qxDocumentVariant &after)
{
    const auto nameNow = [&](const QString &name) {
        return pairs.state(before.kind, before.name, name);
    };
    text("base", before.base, after.base);
    if (nameNow(before.standard.text) != after.standard.text)
        text("default", before.standard.text, after.standard.text);
    const auto nameIn = [](const std::vector<qxDocumentOption> &list) {
        return [&list](int place) { return list[std::size_t(place)].name; };
    };
    const qxPairing pairing = pairingOf(
        before.options, after.options,
        [&](const qxDocumentOption &option) { return nameNow(option.name); },
        [](const qxDocumentOption &option) { return option.name; });
    const QLatin1String word("state");
    const qxDocumentOption none;
    for (const qxPairedEntry &entry : qxPairedEntries(pairing)) {
        const auto &old = entry.before < 0 ? none : before.options[std::size_t(entry.before)];
        const auto &now = entry.after < 0 ? none : after.options[std::size_t(entry.after)];
        const QString &name = entry.after < 0 ? old.name : now.name;
        if (entry.before < 0)
            add(word, qxDifferenceSort::Added, name);
        else if (entry.after < 0)
            add(word, qxDifferenceSort::Removed, name);
        else if (old.name != now.name)
            add(word, qxDifferenceSort::Renamed, name, old.name, now.name);
        if (entry.isMoved)
            moved(word, name, nameIn(before.options), nameIn(after.options), entry);
        text("key", old.hotkey.text, now.hotkey.text, name);
    }
}
