#include "Repair/qxDocumentRepair.h"

#include "Repair/qxBreakFinder.h"
#include "Repair/qxRepairNames.h"
#include "Repair/qxRepairSearch.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace {

/// Whether the place refers to something; others have the name of a thing itself.
bool isReference(const qxDocumentPlace &place)
{
    return !place.isOwn || place.named == qxNamed::State;
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

/// One thing cannot be what two names have become: it is left to the name that it is ahead for.
void noteContests(std::vector<qxBreak> &breaks)
{
    std::map<QString, std::vector<qxBreak *>> claims;
    for (qxBreak &each : breaks) {
        if (each.candidates.empty())
            continue;
        const bool isOfKind = each.named == qxNamed::State || each.named == qxNamed::Variant;
        qxBreak claimed;
        claimed.named = each.named;
        claimed.kind = isOfKind ? each.kind : nullptr;
        claimed.variant = each.variant;
        claimed.isDefault = each.isDefault;
        claimed.name = each.candidates.front().name;
        claims[claimed.key()].push_back(&each);
    }
    for (auto &claim : claims) {
        std::vector<qxBreak *> &rivals = claim.second;
        const auto scoreOf = [](const qxBreak *each) { return each->candidates.front().score; };
        std::sort(rivals.begin(), rivals.end(), [&](const qxBreak *one, const qxBreak *other) {
            return scoreOf(one) > scoreOf(other);
        });
        const QString &name = rivals.front()->name;
        const auto rival = std::find_if(rivals.begin(), rivals.end(),
                                        [&](const qxBreak *each) { return each->name != name; });
        if (rival == rivals.end())
            continue;
        const bool isAhead = scoreOf(rivals.front()) - scoreOf(*rival) >= qxBreak::Ahead;
        for (qxBreak *each : rivals) {
            if (isAhead && each->name == name)
                continue;
            each->isContested = true;
            each->candidates.front().reason +=
                QStringLiteral(", but may be meant by \"%1\" as well")
                    .arg(each->name == name ? (*rival)->name : name);
        }
    }
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
        if (!isReference(place))
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
    noteContests(breaks);
    return breaks;
}

void qxDocumentRepair::apply(qxDocument &document, const std::vector<qxBreak> &repaired)
{
    QSet<QString> old;
    QHash<QString, QString> names; // by the keys of the breaks
    for (const qxBreak &each : repaired) {
        old.insert(each.name);
        names.insert(each.key(), each.candidates.front().name);
    }
    qxDocumentPlaces::visit(document, [&](const qxDocumentPlace &place, QString &text) {
        if (!isReference(place) || !old.contains(text))
            return;
        qxBreak broken = breakAt(place, text);
        text = names.value(broken.key(), text);
        broken.isDefault = place.isDefault();
        if (text == broken.name && broken.isDefault)
            text = names.value(broken.key(), text);
    });
    // What two places held may be the same thing now.
    for (qxDocumentSet &set : document.sets)
        set.foldTwins();
    for (qxDocumentVariant &variant : document.variants)
        variant.foldTwins();
}

std::vector<qxBreak> qxDocumentRepair::applyClear(qxDocument &document,
                                                  const qxRepairHistory *history)
{
    std::vector<qxBreak> repaired;
    for (;;) {
        std::vector<qxBreak> clear;
        for (qxBreak &each : find(document, history)) {
            if (!each.clear())
                continue;
            each.candidates.resize(1);
            clear.push_back(std::move(each));
        }
        if (clear.empty())
            return repaired;
        qxDocumentRepair::apply(document, clear);
        std::move(clear.begin(), clear.end(), std::back_inserter(repaired));
    }
}
