#include "qxTransformVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxFindCache.h"
#include "qxForecast.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

QString textOf(const qxVariantKind &kind, const qxVariantState &entry)
{
    return QStringLiteral("%1 %2 = %3").arg(kind.word, entry.variant, entry.state);
}

/// Everything of a set that optimizing may drop, as words such as "node Roof = Open".
QStringList entriesOf(const qxVariantSet &set)
{
    QStringList entries;
    const auto addStates = [&](const qxVariantKinds::List &kinds) {
        for (const qxVariantKind *kind : kinds) {
            for (const qxVariantState &each : set.*kind->states)
                entries += textOf(*kind, each);
        }
    };
    const auto addNames = [&](const char *kind, const qxUniqueNames &names) {
        for (const QString &name : names)
            entries += QStringLiteral("%1 %2").arg(QLatin1String(kind), name);
    };
    addStates(qxVariantKinds::optimizingOrder().first);
    addNames("geometry", set.geometries);
    addNames("viewpoint", set.viewpoints);
    addNames("animation", set.animations);
    addStates(qxVariantKinds::optimizingOrder().rest);
    return entries;
}

/// What `now` misses of `before`; the order of both is the same.
QStringList missing(const QStringList &before, const QStringList &now)
{
    QStringList gone;
    int kept = 0;
    for (const QString &entry : before) {
        if (kept < now.size() && now[kept] == entry)
            ++kept;
        else
            gone += entry;
    }
    return gone;
}

struct Shortened {
    QString set;
    QStringList dropped;
    QStringList kept; ///< although optimizing drops them
};

/// Whether the state is an action that does something. To optimizing, transforms have no actions.
bool isWorkingStep(const qxVariantState &entry)
{
    const qxTransformVariant *const variant = qxVariants::findTransformVariant(entry.variant);
    if (!variant || !entry.state.startsWith(QLatin1Char('!')))
        return false;
    const qxStateRule &rule = qxStateRules::transform;
    const std::vector<qxSceneObject> nodes = rule.objects(variant->nodeName);
    qxStateSurvey survey;
    return std::any_of(nodes.begin(), nodes.end(), [&](const qxSceneObject &node) {
        return survey.ask(rule, node, entry.state).front().isTaken();
    });
}

/// Puts those steps of `before` back that are gone and work, each where it was, and answers them.
QStringList putBackSteps(qxVariantSet &set, const qxStateList &before)
{
    QStringList kept;
    qxStateList whole;
    for (const qxVariantState &entry : before) {
        if (!set.transformVariants.find(entry.variant)) {
            if (!isWorkingStep(entry))
                continue;
            kept += textOf(qxVariantKinds::transform, entry);
        }
        whole.add(entry.variant, entry.state);
    }
    if (!kept.isEmpty())
        set.transformVariants = whole;
    return kept;
}

/// What a set holds before it is optimized.
struct Before {
    QStringList entries;
    qxStateList transforms;
};

/// Optimizes every set; steps of transforms that work stay unless `strict`.
QList<Shortened> optimizeAll(bool strict)
{
    QList<Before> before;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        before += {entriesOf(*set), set->transformVariants};
    qxVariants::optimizeVariantSets();
    const qxFindCache cache(true);
    QList<Shortened> result;
    int index = 0;
    for (qxVariantSet *set : qxVariants::_variantSets) {
        const Before &was = before[index++];
        const QStringList kept = strict ? QStringList() : putBackSteps(*set, was.transforms);
        const QStringList dropped = missing(was.entries, entriesOf(*set));
        if (!dropped.isEmpty() || !kept.isEmpty())
            result += {set->name, dropped, kept};
    }
    return result;
}

void warnOfKept(const QList<Shortened> &shortened)
{
    for (const Shortened &each : shortened) {
        for (const QString &entry : each.kept)
            qxOutput::error(QStringLiteral("\"%1\" keeps %2, which works; --strict drops it")
                                .arg(each.set, entry));
    }
}

/// Removes the sets that hold nothing and answers their names.
QStringList removeEmpty()
{
    QStringList names;
    for (qxVariantSet *set : qxVariants::_variantSets) {
        if (set->isEmpty())
            names += set->name;
    }
    qxVariants::clearEmptyVariantSets();
    return names;
}

void printJson(const QList<Shortened> &shortened, const QStringList &removed)
{
    QJsonArray sets;
    for (const Shortened &each : shortened)
        sets += QJsonObject{{QStringLiteral("name"), each.set},
                            {QStringLiteral("dropped"), QJsonArray::fromStringList(each.dropped)},
                            {QStringLiteral("kept"), QJsonArray::fromStringList(each.kept)}};
    qxOutput::json(QJsonObject{{QStringLiteral("sets"), sets},
                               {QStringLiteral("removed"), QJsonArray::fromStringList(removed)}});
}

void print(const QList<Shortened> &shortened, const QStringList &removed)
{
    bool isNothingDropped = removed.isEmpty();
    for (const Shortened &each : shortened) {
        if (each.dropped.isEmpty())
            continue;
        isNothingDropped = false;
        qxOutput::line(each.set);
        for (const QString &entry : each.dropped)
            qxOutput::line(QStringLiteral("  dropped  ") + entry);
    }
    for (const QString &name : removed) {
        qxOutput::line(name);
        qxOutput::line(QStringLiteral("  removed, it holds nothing"));
    }
    if (isNothingDropped)
        qxOutput::line(QStringLiteral("nothing to drop"));
}

QList<QCommandLineOption> optimizeOptions()
{
    return {{QStringLiteral("remove-empty"),
             QStringLiteral("Also removes the sets that hold nothing afterwards.")},
            {QStringLiteral("strict"),
             QStringLiteral("Drops steps of transforms, such as !Next, even though they work: no "
                            "transform state has that name.")},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

int runOptimize(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    const QList<Shortened> shortened = optimizeAll(parser.isSet(QStringLiteral("strict")));
    warnOfKept(shortened);
    const QStringList removed =
        parser.isSet(QStringLiteral("remove-empty")) ? removeEmpty() : QStringList();
    if (parser.isSet(QStringLiteral("json")))
        printJson(shortened, removed);
    else
        print(shortened, removed);
    return qxCommands::saveIfAsked(session, parser);
}

} // namespace

const qxCommand qxCommands::optimize = {
    "optimize",      "FILE",     "Drops from the sets what can no longer work in the scene.", 1, 1,
    optimizeOptions, runOptimize};
