#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "Report/qxChangeReport.h"
#include "Report/qxOutput.h"
#include "Session/qxSceneRecord.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxSuggestions.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

QStringList kindWords()
{
    QStringList words;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        words += kind->word;
    return words;
}

QList<QCommandLineOption> setOptions()
{
    return {{QStringLiteral("kind"),
             QStringLiteral("Takes the variant of this kind when several share the name."),
             kindWords().join(QLatin1Char('|'))},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::recordOption(),
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
    qxVariantKinds::visit([&](const qxVariantKind &each, const qxVariant &variant) {
        if (kind.isEmpty() || kind == each.word)
            names += variant.name;
    });
    names.removeDuplicates();
    return names;
}

/// The one variant that is meant, or null after saying why none is.
qxVariant *findVariant(const QString &name, const QString &kind)
{
    qxVariant *found = nullptr;
    QStringList kinds;
    for (const qxVariantKind *each : qxVariantKinds::all()) {
        qxVariant *const variant = each->find(name);
        if (!variant || (!kind.isEmpty() && kind != each->word))
            continue;
        found = variant;
        kinds += each->word;
    }
    if (kinds.size() == 1)
        return found;
    const QString wanted = kind.isEmpty() ? kind : kind + QLatin1Char(' ');
    qxOutput::error(kinds.isEmpty()
                        ? QStringLiteral("no %1variant is called \"%2\"").arg(wanted, name)
                            + qxSuggestions::question(name, variantNames(kind))
                        : QStringLiteral("several variants are called \"%1\", say --kind %2")
                              .arg(name, kinds.join(QLatin1String(" or "))));
    return nullptr;
}

int runSet(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    const QString kind = parser.value(QStringLiteral("kind"));
    if (!kind.isEmpty() && !kindWords().contains(kind)) {
        qxOutput::error(QStringLiteral("unknown kind \"%1\"; there are %2")
                            .arg(kind, kindWords().join(QLatin1String(", "))));
        return WrongUse;
    }
    if (!qxCommands::checkRecord(parser))
        return WrongUse;
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
    if (parser.isSet(QStringLiteral("record")))
        report.setRecord(qxSceneRecord::take(session.file()));
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(report.toJson());
    else
        report.print();
    return qxCommands::saveIfAsked(session, parser);
}

} // namespace

const qxCommand qxCommands::set = {
    "set", "FILE VARIANT STATE", "Puts one variant into a state.", 3, 3, setOptions, runSet};
