#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Script/qxPrompt.h"
#include "Script/qxScriptRunner.h"
#include "Script/qxVariantBindings.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxText.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <functional>
#include <unistd.h>

namespace {

/// The arguments of a command, and those behind "--", which are the script's.
struct Arguments {
    QStringList own;
    QStringList ofTheScript;
};

Arguments argumentsOf(const QCommandLineParser &parser)
{
    const QStringList all = QCoreApplication::arguments();
    const int dashes = all.indexOf(QStringLiteral("--"));
    const QStringList behind = dashes < 0 ? QStringList() : all.mid(dashes + 1);
    const QStringList positional = parser.positionalArguments();
    return {positional.mid(0, positional.size() - behind.size()), behind};
}

QList<QCommandLineOption> scriptOptions()
{
    return {qxCommands::scriptsOption(), qxCommands::noScriptsOption(), qxCommands::saveOption(),
            qxCommands::traceOption()};
}

/// Opens the scene, if one is named, and does the work; saves what it made of the scene, but only
/// when the work succeeded.
int inScene(const QCommandLineParser &parser, const QStringList &file,
            const std::function<int()> &work)
{
    const QString out = parser.value(QStringLiteral("save"));
    if (file.isEmpty() && !out.isEmpty())
        return qxCommands::fail(QStringLiteral("--save needs a FILE to save"), WrongUse);
    qxScriptRunner::setOutput(stdout);
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!file.isEmpty() && !session.open(file.first()))
        return WorkFailed;
    const int code = work();
    if (code == Success)
        return qxCommands::saveIfAsked(session, parser);
    if (!out.isEmpty())
        qxOutput::error(QStringLiteral("%1: not written, because the script failed").arg(out));
    return code;
}

/// Runs a whole script; the exit code.
int runScript(const QByteArray &text, const std::string &fileName)
{
    if (qxScriptRunner::run(text.toStdString(), fileName))
        return Success;
    return qxScriptRunner::wereInterrupted() ? Interrupted : WorkFailed;
}

/// Of what it asks for, only the exit() that ends it decides.
int runPrompt()
{
    return qxPrompt::run() ? Success : WorkFailed;
}

int runFile(const QCommandLineParser &parser)
{
    const Arguments arguments = argumentsOf(parser);
    if (arguments.own.isEmpty())
        return qxCommands::fail(QStringLiteral("run needs SCRIPT [FILE]"), WrongUse);
    if (arguments.own.size() > 2)
        return qxCommands::fail(QStringLiteral("too many arguments for run"), WrongUse);
    const QString name = arguments.own.first();
    QByteArray text;
    if (!qxStreams::read(name, text))
        return WorkFailed;
    qxVariantBindings::setArguments(QStringList(name) + arguments.ofTheScript);
    return inScene(parser, arguments.own.mid(1), [&] {
        return runScript(text, name == QLatin1String("-") ? "<stdin>" : qxText::toUtf8(name));
    });
}

/// Without a person at a terminal, standard input is a script like any other.
int prompt(const QCommandLineParser &parser)
{
    const Arguments arguments = argumentsOf(parser);
    if (arguments.own.size() > 1)
        return qxCommands::fail(QStringLiteral("too many arguments for python"), WrongUse);
    qxVariantBindings::setArguments(QStringList(QString()) + arguments.ofTheScript);
    if (isatty(fileno(stdin)))
        return inScene(parser, arguments.own, runPrompt);
    QByteArray text;
    if (!qxStreams::read(QStringLiteral("-"), text))
        return WorkFailed;
    return inScene(parser, arguments.own, [&] { return runScript(text, "<stdin>"); });
}

} // namespace

const qxCommand qxCommands::runScript = {
    "run",         "SCRIPT [FILE]", "Runs a Python script, in a scene if one is named.", 1, -1,
    scriptOptions, runFile};

const qxCommand qxCommands::python = {
    "python", "[FILE]", "Asks for Python statements and runs them, in a scene if one is named.",
    0,        -1,       scriptOptions,
    prompt};
