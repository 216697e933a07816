#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "qxShowCommand.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject setObject(const qxVariantSet &set)
{
    return {{QStringLiteral("name"), set.name},
            {QStringLiteral("group"), set.group ? QJsonValue(set.group->name) : QJsonValue()},
            {QStringLiteral("hotkey"), set.hotkey},
            {QStringLiteral("comment"), set.comment}};
}

QStringList setRow(const qxVariantSet &set)
{
    return {QLatin1String("  ") + set.name, set.hotkey, set.comment};
}

void printListJson(const qxSession &)
{
    QJsonArray groups;
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        groups += QJsonObject{{QStringLiteral("name"), group->name},
                              {QStringLiteral("comment"), group->comment},
                              {QStringLiteral("visible"), group->visible}};
    }
    QJsonArray sets;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        sets += setObject(*set);
    qxOutput::json(QJsonObject{{QStringLiteral("groups"), groups}, {QStringLiteral("sets"), sets}});
}

void printListTable(const qxSession &)
{
    QList<QStringList> rows;
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        const QString hidden = group->visible ? QString() : QStringLiteral("(hidden)");
        rows += QStringList{group->name, hidden, group->comment};
        for (const qxVariantSet *set : group->sets)
            rows += setRow(*set);
    }
    bool first = true;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set->group)
            continue;
        if (first)
            rows += QStringList{QStringLiteral("(no group)")};
        first = false;
        rows += setRow(*set);
    }
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("no variant sets")};
    qxOutput::table(rows);
}

int runList(const QCommandLineParser &parser)
{
    return qxShowCommand::run(parser, printListJson, printListTable);
}

} // namespace

const qxCommand qxCommands::list = {"list", "FILE", "Shows the variant groups and sets of a scene.",
                                    1,      1,      qxShowCommand::options,
                                    runList};
