#include "qxCommand.h"

#include "Script/qxScriptRunner.h"
#include "qxLeftOutScripts.h"
#include "qxOutput.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <cstdio>

namespace {

const qxCommand *const commands[] = {
    &qxCommands::info,     &qxCommands::list,    &qxCommands::state,    &qxCommands::select,
    &qxCommands::set,      &qxCommands::create,  &qxCommands::document, &qxCommands::verify,
    &qxCommands::optimize, &qxCommands::lint,    &qxCommands::explain,  &qxCommands::runScript,
    &qxCommands::python,   &qxCommands::render,  &qxCommands::previews, &qxCommands::catalogue,
    &qxCommands::check,    &qxCommands::capture,
};

QString overview()
{
    QString text = QStringLiteral("Usage: workbench COMMAND FILE ... [options]\n"
                                  "       workbench FILE, which opens a window\n\nCommands:\n");
    for (const qxCommand *command : commands) {
        const QString call = QStringLiteral("%1 %2").arg(command->name, command->arguments);
        text += QStringLiteral("  %1 %2\n").arg(call, -30).arg(command->summary);
    }
    return text
        + QStringLiteral("\n\"workbench COMMAND --help\" tells more about a command.\n"
                         "Exit codes: 0 done, 1 the work failed, 2 wrong use, 130 interrupted.\n");
}

int wrongUse(const QString &reason, const QString &hint)
{
    qxOutput::error(QStringLiteral("%1\n%2").arg(reason, hint));
    return WrongUse;
}

/// An option with an empty value, as an unset variable of a script gives one; empty if none has.
QString emptyOption(const qxCommand &command, const QCommandLineParser &parser)
{
    for (const QCommandLineOption &option : command.options()) {
        if (!option.valueName().isEmpty() && parser.isSet(option)
            && parser.values(option).contains(QString()))
            return option.names().first();
    }
    return QString();
}

QString argumentHelp(QString argument)
{
    if (argument.remove(QRegularExpression("[][]")) == QLatin1String("FILE"))
        return QStringLiteral("A scene file, .gltf or .glb.");
    if (argument == QLatin1String("SCRIPT"))
        return QStringLiteral("A file with Python source, - for standard input. "
                              "What follows -- on the command line is in its sys.argv.");
    if (argument == QLatin1String("SET"))
        return QStringLiteral("Name of a variant set.");
    if (argument == QLatin1String("SET..."))
        return QStringLiteral("Names of variant sets.");
    if (argument == QLatin1String("NAME"))
        return QStringLiteral("Name of the new variant set.");
    return argument == QLatin1String("VARIANT") ? QStringLiteral("Name of a variant.")
                                                : QStringLiteral("Name of one of its states.");
}

/// The parser's own text, but the command stands where it belongs: before the options.
void printHelp(const qxCommand &command, const QCommandLineParser &parser)
{
    const QString text = parser.helpText();
    qxOutput::line(
        QStringLiteral("Usage: workbench %1 %2 [options]").arg(command.name, command.arguments));
    qxOutput::text(text.mid(text.indexOf(QLatin1Char('\n')) + 1));
}

int runCommand(const qxCommand &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(command.summary));
    for (const QString &argument : QString::fromUtf8(command.arguments).split(QLatin1Char(' ')))
        parser.addPositionalArgument(argument, argumentHelp(argument));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this text."));
    parser.addOption(help);
    parser.addOptions(command.options());

    const QString hint = QStringLiteral("Try \"workbench %1 --help\".").arg(command.name);
    if (!parser.parse(arguments))
        return wrongUse(parser.errorText(), hint);
    if (parser.isSet(help)) {
        printHelp(command, parser);
        return Success;
    }
    const int count = parser.positionalArguments().size();
    if (count < command.minimum)
        return wrongUse(QStringLiteral("%1 needs %2").arg(command.name, command.arguments), hint);
    if (command.maximum >= 0 && count > command.maximum)
        return wrongUse(QStringLiteral("too many arguments for %1").arg(command.name), hint);
    const QString empty = emptyOption(command, parser);
    if (!empty.isEmpty())
        return wrongUse(QStringLiteral("--%1 needs a value").arg(empty), hint);
    // Standard output is for the results of the command.
    qxScriptRunner::setOutput(stderr);
    const qxLeftOutScripts leftOut(parser.optionNames().contains(QStringLiteral("no-scripts")));
    const int code = command.run(parser);
    if (qxOutput::isWhole())
        return code;
    return qxCommands::fail(QStringLiteral("standard output cannot be written"));
}

} // namespace

int qxCommands::dispatch(const QStringList &arguments)
{
    const QString name = arguments.value(1);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")
        || name == QLatin1String("help")) {
        qxOutput::text(overview());
        return Success;
    }
    for (const qxCommand *command : commands) {
        if (name == QLatin1String(command->name))
            return runCommand(*command, arguments.mid(0, 1) + arguments.mid(2));
    }
    const QString reason = name.isEmpty() ? QStringLiteral("no command given")
                                          : QStringLiteral("unknown command \"%1\"").arg(name);
    return wrongUse(reason, overview());
}

QCommandLineOption qxCommands::jsonOption()
{
    return {QStringLiteral("json"), QStringLiteral("Writes JSON for other programs.")};
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

QCommandLineOption qxCommands::noScriptsOption()
{
    return {QStringLiteral("no-scripts"),
            QStringLiteral("Leaves out the scripts in FILE, and says which.")};
}

int qxCommands::codeAfterScripts()
{
    if (qxScriptRunner::wereInterrupted())
        return Interrupted;
    return qxScriptRunner::haveFailed() ? WorkFailed : Success;
}

int qxCommands::fail(const QString &reason)
{
    qxOutput::error(reason);
    return WorkFailed;
}
