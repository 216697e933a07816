#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Report/qxChangeReport.h"
#include "Report/qxOutput.h"
#include "Session/qxInterrupt.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("keep-camera"), QStringLiteral("Stays where the camera is.")},
            qxCommands::scriptsOption(),
            qxCommands::noScriptsOption(),
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

/// Whether there are sets of all these names; says which one is missing.
bool areSets(const QStringList &names)
{
    for (const QString &name : names) {
        if (!qxVariants::findVariantSet(name)) {
            qxOutput::error(qxUnknownName::set(name));
            return false;
        }
    }
    return true;
}

/// What the set refers to although the registry does not have it.
QStringList missingVariants(const qxVariantSet &set)
{
    QStringList missing;
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().all()) {
        for (const qxVariantState &state : set.*kind->states) {
            if (!kind->find(state.variant))
                missing += QStringLiteral("no %1 variant \"%2\"").arg(kind->word, state.variant);
        }
    }
    return missing;
}

/// A set that the script of an earlier one has removed or renamed is missing like anything else.
QStringList missingFor(const QString &name)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    return set ? missingVariants(*set) : QStringList(QStringLiteral("no longer there"));
}

/// What a script has left half done takes no file's place.
int saveAfterScripts(qxSession &session, const QCommandLineParser &parser)
{
    const int code = qxCommands::codeAfterScripts();
    if (code == Success)
        return qxCommands::saveIfAsked(session, parser);
    const QString out = parser.value(QStringLiteral("save"));
    if (!out.isEmpty())
        qxOutput::error(QStringLiteral("%1: not written, because a script failed").arg(out));
    return code;
}

int run(const QCommandLineParser &parser)
{
    const QStringList names = parser.positionalArguments().mid(1);
    const bool json = parser.isSet(QStringLiteral("json"));
    qxSession session(parser.isSet(QStringLiteral("trace")));
    // Looked up before the first selection: nothing is half done because of a misspelt name.
    if (!session.open(parser.positionalArguments().first()) || !areSets(names))
        return WorkFailed;

    QJsonArray reports;
    for (const QString &name : names) {
        if (qxInterrupt::isAsked())
            break;
        const QStringList missing = missingFor(name);
        qxChangeReport report;
        qxVariants::selectVariantSet(name.toUtf8().constData(),
                                     parser.isSet(QStringLiteral("keep-camera")));
        report.finish(name, missing);
        if (json)
            reports += report.toJson();
        else
            report.print();
    }
    if (json)
        qxOutput::json(reports);
    return saveAfterScripts(session, parser);
}

} // namespace

const qxCommand qxCommands::select = {
    "select", "FILE SET...", "Selects variant sets one after the other.", 2, -1, options, run};
