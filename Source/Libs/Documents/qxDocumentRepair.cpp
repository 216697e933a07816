#include "qxDocumentRepair.h"

#include "qxBreakFinder.h"
#include "qxRepairNames.h"
#include "qxRepairSearch.h"

#include <algorithm>

namespace {

/// How good the best candidate must be, and how much better than the next.
constexpr double GoodEnough = 0.6;
constexpr double Ahead = 0.1;

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

QString qxBreak::key() const
{
    const QString word = qxRepairNames::wordOf(named);
    if (named == qxNamed::State)
        return QStringLiteral("%1-%2:%3:%4")
            .arg(kind->word, isDefault ? QStringLiteral("default") : word, variant, name);
    if (named == qxNamed::Variant)
        return QStringLiteral("%1-variant:%2").arg(kind->word, name);
    return QStringLiteral("%1:%2").arg(kind ? kind->word + QLatin1String("-object") : word, name);
}

const qxRepairCandidate *qxBreak::clear() const
{
    if (candidates.empty() || candidates.front().score < GoodEnough)
        return nullptr;
    const bool isAlone =
        candidates.size() == 1 || candidates[0].score - candidates[1].score >= Ahead;
    return isAlone ? &candidates.front() : nullptr;
}

qxDocumentRepair::qxDocumentRepair(const qxDocument &document, const qxRepairHistory *history)
{
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
            found = known.insert(broken.key(), works ? -1 : int(m_breaks.size()));
            if (!works)
                m_breaks.push_back(broken);
        }
        if (*found >= 0)
            m_breaks[std::size_t(*found)].places += place.text();
    });
    if (m_breaks.empty())
        return;
    const qxSceneOutline scene = qxSceneOutline::take();
    const qxRepairSearch search(document, scene, history);
    for (qxBreak &each : m_breaks)
        search.complete(each);
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
        const qxDocumentRepair repair(document, history);
        for (const qxBreak &each : repair.breaks()) {
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
