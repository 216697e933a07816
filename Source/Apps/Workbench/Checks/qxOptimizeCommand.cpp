#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxCommand.h"
#include "qxOutput.h"
#include "qxSession.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

/// Everything of a set that optimizing may drop, as words such as "node Roof = Open".
QStringList entriesOf(const qxVariantSet &set)
{
    QStringList entries;
    const auto addStates = [&](const char *kind, const qxStateList &states) {
        for (const qxVariantState &each : states)
            entries +=
                QStringLiteral("%1 %2 = %3").arg(QLatin1String(kind), each.variant, each.state);
    };
    const auto addNames = [&](const char *kind, const qxUniqueNames &names) {
        for (const QString &name : names)
            entries += QStringLiteral("%1 %2").arg(QLatin1String(kind), name);
    };
    addStates("node", set.nodeVariants);
    addStates("material", set.materialVariants);
    addStates("light", set.lightVariants);
    addNames("geometry", set.geometries);
    addNames("viewpoint", set.viewpoints);
    addNames("animation", set.animations);
    addStates("overlay", set.overlayVariants);
    addStates("transform", set.transformVariants);
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
};

QList<Shortened> optimizeAll()
{
    QList<QStringList> before;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        before += entriesOf(*set);
    qxVariants::optimizeVariantSets();
    QList<Shortened> result;
    int index = 0;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        const QStringList dropped = missing(before[index++], entriesOf(*set));
        if (!dropped.isEmpty())
            result += {set->name, dropped};
    }
    return result;
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
                            {QStringLiteral("dropped"), QJsonArray::fromStringList(each.dropped)}};
    qxOutput::json(QJsonObject{{QStringLiteral("sets"), sets},
                               {QStringLiteral("removed"), QJsonArray::fromStringList(removed)}});
}

void print(const QList<Shortened> &shortened, const QStringList &removed)
{
    for (const Shortened &each : shortened) {
        qxOutput::line(each.set);
        for (const QString &entry : each.dropped)
            qxOutput::line(QStringLiteral("  dropped  ") + entry);
    }
    for (const QString &name : removed)
        qxOutput::line(QStringLiteral("%1\n  removed, it holds nothing").arg(name));
    if (shortened.isEmpty() && removed.isEmpty())
        qxOutput::line(QStringLiteral("nothing to drop"));
}

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("remove-empty"),
             QStringLiteral("Also removes the sets that hold nothing afterwards.")},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

int run(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    const QList<Shortened> shortened = optimizeAll();
    const QStringList removed =
        parser.isSet(QStringLiteral("remove-empty")) ? removeEmpty() : QStringList();
    if (parser.isSet(QStringLiteral("json")))
        printJson(shortened, removed);
    else
        print(shortened, removed);
    return session.saveIfAsked(parser.value(QStringLiteral("save"))) ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::optimize = {
    "optimize", "FILE", "Drops from the sets what can no longer work in the scene.", 1, 1,
    options,    run};
