#include "qxVariantTable.h"

#include "qxChangeReport.h"
#include "qxCommand.h"
#include "qxOutput.h"
#include "qxSession.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("kind"),
             QStringLiteral("Takes the variant of this kind when several share the name: node, "
                            "material, light, overlay or transform."),
             QStringLiteral("KIND")},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

QString stateNames(const qxVariant &variant)
{
    QStringList names;
    for (const qxVariantOption &option : variant.options)
        names += QLatin1Char('"') + option.name + QLatin1Char('"');
    return names.join(QLatin1String(", "));
}

/// The one variant that is meant, or null after saying why none is.
qxVariant *findVariant(const QString &name, const QString &kind)
{
    QList<qxVariantRow> rows;
    for (const qxVariantRow &row : qxVariantTable::named(name)) {
        if (kind.isEmpty() || kind == QLatin1String(row.kind))
            rows += row;
    }
    if (rows.size() == 1)
        return rows.first().variant;
    QStringList kinds;
    for (const qxVariantRow &row : rows)
        kinds += QLatin1String(row.kind);
    const QString wanted = kind.isEmpty() ? kind : kind + QLatin1Char(' ');
    qxOutput::error(rows.isEmpty()
                        ? QStringLiteral("no %1variant is called \"%2\"").arg(wanted, name)
                        : QStringLiteral("several variants are called \"%1\", say --kind %2")
                              .arg(name, kinds.join(QLatin1String(" or "))));
    return nullptr;
}

int run(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(arguments[0]))
        return WorkFailed;
    qxVariant *variant = findVariant(arguments[1], parser.value(QStringLiteral("kind")));
    if (!variant)
        return WorkFailed;
    if (!variant->find(arguments[2]))
        return qxCommands::fail(QStringLiteral("\"%1\" has no state \"%2\"; it has %3")
                                    .arg(variant->name, arguments[2], stateNames(*variant)));

    qxChangeReport report;
    variant->onSelect(arguments[2]);
    report.finish(variant->name, {});
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(report.toJson());
    else
        report.print();
    return session.saveIfAsked(parser.value(QStringLiteral("save"))) ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::set = {
    "set", "FILE VARIANT STATE", "Puts one variant into a state.", 3, 3, options, run};
