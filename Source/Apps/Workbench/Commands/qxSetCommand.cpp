#include "Report/qxChangeReport.h"
#include "Report/qxOutput.h"
#include "Report/qxVariantTable.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxSuggestions.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("kind"),
             QStringLiteral("Takes the variant of this kind when several share the name."),
             qxVariantTable::kinds().join(QLatin1Char('|'))},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

/// Why the variant cannot be put into that state: with the nearest states, or else with all.
QString noState(const qxVariant &variant, const QString &state)
{
    QStringList names;
    for (const qxVariantOption &option : variant.options)
        names += option.name;
    QString known = qxSuggestions::question(state, names);
    if (known.isEmpty() && !names.isEmpty())
        known = QStringLiteral("; it has \"%1\"").arg(names.join(QLatin1String("\", \"")));
    return QStringLiteral("\"%1\" has no state \"%2\"").arg(variant.name, state) + known;
}

QStringList variantNames(const QString &kind)
{
    QStringList names;
    for (const qxVariantRow &row : qxVariantTable::all()) {
        if (kind.isEmpty() || kind == QLatin1String(row.kind))
            names += row.variant->name;
    }
    names.removeDuplicates();
    return names;
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
                            + qxSuggestions::question(name, variantNames(kind))
                        : QStringLiteral("several variants are called \"%1\", say --kind %2")
                              .arg(name, kinds.join(QLatin1String(" or "))));
    return nullptr;
}

int run(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    const QString kind = parser.value(QStringLiteral("kind"));
    if (!kind.isEmpty() && !qxVariantTable::kinds().contains(kind)) {
        qxOutput::error(QStringLiteral("unknown kind \"%1\"; there are %2")
                            .arg(kind, qxVariantTable::kinds().join(QLatin1String(", "))));
        return WrongUse;
    }
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(arguments[0]))
        return WorkFailed;
    qxVariant *variant = findVariant(arguments[1], kind);
    if (!variant)
        return WorkFailed;
    if (!variant->find(arguments[2]))
        return qxCommands::fail(noState(*variant, arguments[2]));

    qxChangeReport report;
    variant->onSelect(arguments[2]);
    report.finish(variant->name, {});
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(report.toJson());
    else
        report.print();
    return qxCommands::saveIfAsked(session, parser);
}

} // namespace

const qxCommand qxCommands::set = {
    "set", "FILE VARIANT STATE", "Puts one variant into a state.", 3, 3, options, run};
