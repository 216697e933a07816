#include "qxVariantTable.h"

#include "qxOutput.h"
#include "qxShowCommand.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject object(const qxVariantRow &row)
{
    QJsonArray states;
    for (const qxVariantOption &option : row.variant->options)
        states += QJsonObject{{QStringLiteral("name"), option.name},
                              {QStringLiteral("shortcut"), option.shortcut},
                              {QStringLiteral("action"), option.isAction}};
    return {{QStringLiteral("kind"), QLatin1String(row.kind)},
            {QStringLiteral("name"), row.variant->name},
            {QStringLiteral("current"), row.variant->onCurrent()},
            {QStringLiteral("default"), row.variant->defaultState},
            {QStringLiteral("states"), states}};
}

void printJson(const qxSession &)
{
    QJsonArray array;
    for (const qxVariantRow &row : qxVariantTable::all())
        array += object(row);
    qxOutput::json(array);
}

void printTable(const qxSession &)
{
    QList<QStringList> rows;
    for (const qxVariantRow &row : qxVariantTable::all()) {
        const QString current = row.variant->onCurrent();
        rows += QStringList{QLatin1String(row.kind), row.variant->name,
                            current.isEmpty() ? QStringLiteral("-") : current};
    }
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
