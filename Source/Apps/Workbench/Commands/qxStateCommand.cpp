#include "Report/qxOutput.h"
#include "Report/qxVariantTable.h"
#include "qxFindCache.h"
#include "qxShowCommand.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject object(const qxVariantRow &row, const qxShownState &shown)
{
    QJsonArray states;
    for (const qxVariantOption &option : row.variant->options)
        states += QJsonObject{{QStringLiteral("name"), option.name},
                              {QStringLiteral("shortcut"), option.shortcut},
                              {QStringLiteral("action"), option.isAction}};
    return {{QStringLiteral("kind"), QLatin1String(row.kind)},
            {QStringLiteral("name"), row.variant->name},
            {QStringLiteral("current"), shown.state()},
            {QStringLiteral("hidden"), shown.isHidden},
            {QStringLiteral("default"), row.variant->defaultState},
            {QStringLiteral("states"), states}};
}

void printJson(const qxSession &)
{
    const qxFindCache cache(true);
    QJsonArray array;
    for (const qxVariantRow &row : qxVariantTable::all())
        array += object(row, row.variant->shown());
    qxOutput::json(array);
}

QString wordsFor(const qxShownState &shown)
{
    if (shown.state().isEmpty())
        return QStringLiteral("-");
    return shown.isHidden && shown.state() != variantDisable
        ? shown.state() + QLatin1String(" (hidden)")
        : shown.state();
}

void printTable(const qxSession &)
{
    const qxFindCache cache(true);
    QList<QStringList> rows;
    for (const qxVariantRow &row : qxVariantTable::all())
        rows +=
            QStringList{QLatin1String(row.kind), row.variant->name, wordsFor(row.variant->shown())};
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("no variants")};
    qxOutput::table(rows);
}

int run(const QCommandLineParser &parser)
{
    return qxShowCommand::run(parser, printJson, printTable);
}

} // namespace

const qxCommand qxCommands::state = {
    "state", "FILE", "Shows every variant with the state the scene is in.",
    1,       1,      qxShowCommand::options,
    run};
