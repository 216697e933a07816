#include "Repair/qxDocumentRepair.h"

#include "Repair/qxBreakFinder.h"
#include "Repair/qxRepairNames.h"
#include "Repair/qxRepairSearch.h"

#include <algorithm>

namespace {

/// Whether the place names what the break is about.
bool isOf(const qxDocumentPlace &place, const QString &name, const qxBreak &broken)
{
    if (place.named != broken.named || name != broken.name || (place.isOwn && !place.kind)
        || (broken.isDefault && !place.isDefault()))
        return false;
    if (place.named == qxNamed::Variant)
        return !place.isOwn && place.kind == broken.kind;
    if (place.named == qxNamed::State)
        return place.kind == broken.kind && place.owner == broken.variant;
    return qxBreakFinder::needOf(place) == broken.kind;
}

qxBreak breakAt(const qxDocumentPlace &place, const QString &name)
{
    qxBreak broken;
    broken.named = place.named;
    broken.kind = place.kind ? place.kind : qxBreakFinder::needOf(place);
    broken.variant = place.owner;
    broken.name = name;
    return broken;
}

/// Leaves the first entry of each name.
template <class List, class NameOf>
void dropTwins(List &list, const NameOf &nameOf)
{
    QSet<QString> known;
    const auto isTwin = [&](const auto &each) {
        const bool isKnown = known.contains(nameOf(each));
        known.insert(nameOf(each));
        return isKnown;
    };
    list.erase(std::remove_if(list.begin(), list.end(), isTwin), list.end());
}

/// What two places held may be the same thing now.
void settleSet(qxDocumentSet &set)
{
    const auto textOf = [](const qxDocumentText &each) { return each.text; };
    dropTwins(set.references, [](const qxDocumentReference &each) {
        return each.kind->word + QLatin1Char(' ') + each.variant;
    });
    for (auto &list : set.names)
        dropTwins(list, textOf);
    std::stable_sort(set.snapshots.begin(), set.snapshots.end(),
                     [](const qxDocumentText &one, const qxDocumentText &other) {
                         return one.text < other.text;
                     });
    dropTwins(set.snapshots, textOf);
}

} // namespace

std::vector<qxBreak> qxDocumentRepair::find(const qxDocument &document,
                                            const qxRepairHistory *history)
{
    std::vector<qxBreak> breaks;
    qxBreakFinder finder(document);
    QHash<QString, int> known; // the place of the break; -1 for what works
    qxDocument copy = document;
    qxDocumentPlaces::visit(copy, [&](const qxDocumentPlace &place, QString &name) {
        if (place.isOwn && place.named != qxNamed::State)
            return;
        qxBreak broken = breakAt(place, name);
        broken.isDefault = finder.isNoOption(place, name);
        auto found = known.find(broken.key());
        if (found == known.end()) {
            const bool works = !broken.isDefault && finder.works(place, name);
            found = known.insert(broken.key(), works ? -1 : int(breaks.size()));
            if (!works)
                breaks.push_back(broken);
        }
        if (*found >= 0)
            breaks[std::size_t(*found)].places += place.text();
    });
    if (breaks.empty())
        return breaks;
    const qxSceneOutline scene = qxSceneOutline::take();
    const qxRepairSearch search(document, scene, history);
    for (qxBreak &each : breaks)
        search.complete(each);
    return breaks;
}

void qxDocumentRepair::apply(qxDocument &document, const qxBreak &broken, const QString &name)
{
    qxDocumentPlaces::visit(document, [&](const qxDocumentPlace &place, QString &text) {
        if (isOf(place, text, broken))
            text = name;
    });
    for (qxDocumentSet &set : document.sets)
        settleSet(set);
    for (qxDocumentVariant &variant : document.variants)
        dropTwins(variant.options, [](const qxDocumentOption &each) { return each.name; });
}

std::vector<qxBreak> qxDocumentRepair::applyClear(qxDocument &document,
                                                  const qxRepairHistory *history)
{
    std::vector<qxBreak> repaired;
    for (;;) {
        const std::size_t before = repaired.size();
        for (const qxBreak &each : find(document, history)) {
            const qxRepairCandidate *const clear = each.clear();
            if (!clear)
                continue;
            apply(document, each, clear->name);
            repaired.push_back(each);
            repaired.back().candidates = {*clear};
        }
        if (repaired.size() == before)
            return repaired;
    }
}
