#include "qxCommand.h"

#include "Report/qxOutput.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxInterrupt.h"
#include "Session/qxMemoryLimit.h"
#include "Session/qxSession.h"

#include <QCommandLineParser>

QStringList qxCommands::argumentsOf(const qxCommand &command)
{
    return QString::fromUtf8(command.arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QList<QCommandLineOption> qxCommands::optionsOf(const qxCommand &command)
{
    QList<QCommandLineOption> options;
    for (const QCommandLineOption &option : command.options()) {
        options << option;
        if (option.names() == saveOption().names())
            options << QCommandLineOption(
                QStringLiteral("force"),
                QStringLiteral("Saves over a file that has changed since it was opened."));
    }
    if (QString::fromUtf8(command.arguments).contains(QLatin1String("FILE")))
        options << qxMemoryLimit::option();
    return options << QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                         QStringLiteral("Shows this text."));
}

QCommandLineOption qxCommands::jsonOption()
{
    return {QStringLiteral("json"), QStringLiteral("Writes JSON for other programs.")};
}

QCommandLineOption qxCommands::recordOption()
{
    return {QStringLiteral("record"),
            QStringLiteral("With --json: adds all that the scene shows then, node by node.")};
}

QCommandLineOption qxCommands::saveOption()
{
    return {QStringLiteral("save"), QStringLiteral("Saves the scene with its variants to OUT."),
            QStringLiteral("OUT")};
}

QCommandLineOption qxCommands::traceOption()
{
    return {QStringLiteral("trace"),
            QStringLiteral("Prints every notification with its fields to standard error.")};
}

QCommandLineOption qxCommands::scriptsOption()
{
    return {QStringLiteral("scripts"),
            QStringLiteral("Runs the scripts in FILE this time, trusted or not.")};
}

QCommandLineOption qxCommands::noScriptsOption()
{
    return {QStringLiteral("no-scripts"),
            QStringLiteral("Leaves out the trusted scripts in FILE, too, and says which.")};
}

bool qxCommands::maySave(const qxSession &session, const QCommandLineParser &parser)
{
    const QString out = parser.value(QStringLiteral("save"));
    if (parser.isSet(QStringLiteral("force")) || !session.file().isChangedByOthers(out))
        return true;
    qxOutput::error(QStringLiteral("%1: not written, because somebody has changed it, or a file of "
                                   "its buffers, since it was opened; --force writes it")
                        .arg(out));
    return false;
}

int qxCommands::saveIfAsked(qxSession &session, const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("save")))
        return Success;
    const bool isSaved =
        maySave(session, parser) && session.save(parser.value(QStringLiteral("save")));
    return isSaved ? Success : WorkFailed;
}

int qxCommands::codeAfterScripts()
{
    if (qxScriptRunner::wereInterrupted())
        return Interrupted;
    return qxScriptRunner::haveFailed() ? WorkFailed : Success;
}

int qxCommands::endedEarly(const QString &done, const QString &failure)
{
    if (qxInterrupt::isAsked())
        return fail(QStringLiteral("interrupted; %1").arg(done), Interrupted);
    return failure.isEmpty() ? WorkFailed : fail(QStringLiteral("%1; %2").arg(failure, done));
}

bool qxCommands::checkRecord(const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("record")))
        return true;
    const bool isForeseen = parser.optionNames().contains(QStringLiteral("dry-run"));
    if (isForeseen)
        fail(QStringLiteral("--record and --dry-run do not go together"));
    else if (!parser.isSet(QStringLiteral("json")))
        fail(QStringLiteral("--record needs --json"));
    else
        return true;
    return false;
}

int qxCommands::fail(const QString &reason, qxExitCode code)
{
    qxOutput::error(reason);
    return code;
}
