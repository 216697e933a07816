#include "qxCommandTable.h"

#include "Report/qxOutput.h"
#include "Script/qxBlockedScriptReport.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxMemoryLimit.h"
#include "qxHelp.h"
#include "qxSuggestions.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

int wrongUse(const QString &reason, const QString &hint)
{
    qxOutput::error(reason);
    qxOutput::note(hint);
    return WrongUse;
}

/// An option with an empty value, as an unset variable of a script gives one; empty if none has.
QString emptyOption(const qxCommand &command, const QCommandLineParser &parser)
{
    for (const QCommandLineOption &option : qxCommands::optionsOf(command)) {
        if (!option.valueName().isEmpty() && parser.isSet(option)
            && parser.values(option).contains(QString()))
            return option.names().first();
    }
    return QString();
}

/// Why the options cannot be read.
QString flawOf(const qxCommand &command, const QCommandLineParser &parser)
{
    if (parser.unknownOptionNames().isEmpty())
        return parser.errorText();
    QStringList names;
    for (const QCommandLineOption &option : qxCommands::optionsOf(command))
        names += QLatin1String("--") + option.names().last();
    const QString unknown = parser.unknownOptionNames().first();
    const QString written =
        (unknown.size() > 1 ? QStringLiteral("--") : QStringLiteral("-")) + unknown;
    return QStringLiteral("%1 has no option %2").arg(QLatin1String(command.name), written)
        + qxSuggestions::question(written, names);
}

bool selectsSets(const qxCommand &command)
{
    for (const QCommandLineOption &option : command.options()) {
        if (option.names().contains(QStringLiteral("scripts")))
            return true;
    }
    return false;
}

/// Says of blocked scripts which they are, and in the end what to do about it.
int runWithScripts(const qxCommand &command, const QCommandLineParser &parser,
                   qxScriptRunner::Allowed allowed)
{
    if (!selectsSets(command))
        return command.run(parser);
    int count = 0;
    const qxBlockedScriptReport blockedScripts([&](const QString &set, const QString &line) {
        ++count;
        qxOutput::error(QStringLiteral("left out the script of \"%1\": %2").arg(set, line));
    });
    qxScriptRunner::setAllowed(allowed);
    const int code = command.run(parser);
    qxScriptRunner::setAllowed(qxScriptRunner::Trusted);
    if (count > 0 && allowed == qxScriptRunner::Trusted)
        qxOutput::error(QStringLiteral("scripts of a file run with --scripts, or once "
                                       "\"workbench trust FILE\" has made them trusted"));
    return code;
}

int runCommand(const qxCommand &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOptions(qxCommands::optionsOf(command));
    const QString hint = QStringLiteral("Try \"workbench %1 --help\".").arg(command.name);
    if (!parser.parse(arguments))
        return wrongUse(flawOf(command, parser), hint);
    if (parser.isSet(QStringLiteral("help"))) {
        qxHelp::print(command);
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
    if (!qxMemoryLimit::take(parser))
        return wrongUse(qxMemoryLimit::flaw(parser), hint);
    const int outputs = qxValueKinds::checkOutputs(command, parser);
    if (outputs != Success)
        return outputs == WorkFailed ? command.failed : outputs;
    // Standard output is for the results of the command.
    qxScriptRunner::setOutput(stderr);
    const QStringList given = parser.optionNames();
    const bool all = given.contains(QStringLiteral("scripts"));
    const bool none = given.contains(QStringLiteral("no-scripts"));
    if (all && none)
        return wrongUse(QStringLiteral("--scripts and --no-scripts do not go together"), hint);
    const int code = runWithScripts(command, parser,
                                    all        ? qxScriptRunner::Everything
                                        : none ? qxScriptRunner::Nothing
                                               : qxScriptRunner::Trusted);
    if (qxOutput::isWhole())
        return code;
    qxOutput::error(QStringLiteral("standard output cannot be written"));
    return command.failed;
}

/// Somebody may have meant the window, or put the scene in front of the command.
int runSceneFirst(const QString &file, const QStringList &rest)
{
    if (rest.contains(QStringLiteral("--help")) || rest.contains(QStringLiteral("-h"))) {
        qxHelp::printOverview();
        return Success;
    }
    if (const qxCommand *const command = qxCommands::find(rest.value(0)))
        return wrongUse(QStringLiteral("the command comes before the file"),
                        QStringLiteral("Try \"workbench %1\".")
                            .arg((QStringList{QLatin1String(command->name), file} + rest.mid(1))
                                     .join(QLatin1Char(' '))));
    return wrongUse(QStringLiteral("%1: a file alone opens a window").arg(file),
                    QStringLiteral("Try \"workbench --help\"."));
}

bool isScene(const QString &name)
{
    const QString suffix = QFileInfo(name).suffix().toLower();
    return suffix == QLatin1String("gltf") || suffix == QLatin1String("glb");
}

} // namespace

const QList<const qxCommand *> &qxCommands::all()
{
    static const QList<const qxCommand *> commands{
        &info,     &list,      &state,   &select, &set,      &create,     &document, &verify,
        &optimize, &lint,      &explain, &diff,   &merge,    &gitSetup,   &rename,   &repair,
        &table,    &runScript, &python,  &render, &previews, &catalogue,  &publish,  &exportScene,
        &gather,   &check,     &capture, &trust,  &help,     &completion, &manual,
    };
    return commands;
}

const qxCommand *qxCommands::find(const QString &name)
{
    for (const qxCommand *command : all()) {
        if (name == QLatin1String(command->name))
            return command;
    }
    return nullptr;
}

int qxCommands::unknown(const QString &name)
{
    const QString hint = QStringLiteral("Try \"workbench --help\".");
    if (isScene(name)) {
        qxHelp::printOverview();
        return Success;
    }
    if (QFileInfo::exists(name))
        return wrongUse(QStringLiteral("%1: scene files end in .gltf or .glb").arg(name), hint);
    QStringList names{QStringLiteral("--help"), QStringLiteral("--version")};
    for (const qxCommand *command : all())
        names += QLatin1String(command->name);
    const QString what =
        name.startsWith(QLatin1Char('-')) ? QStringLiteral("option") : QStringLiteral("command");
    return wrongUse(QStringLiteral("unknown %1 \"%2\"").arg(what, name)
                        + qxSuggestions::question(name, names),
                    hint);
}

int qxCommands::dispatch(const QStringList &arguments)
{
    const QString name = arguments.value(1);
    const QStringList rest = arguments.mid(2);
    if (name == QLatin1String("--version") || name == QLatin1String("-v")) {
        qxOutput::line(QLatin1String("workbench ") + QCoreApplication::applicationVersion());
        return Success;
    }
    const bool isHelp = name == QLatin1String("--help") || name == QLatin1String("-h");
    if (const qxCommand *const command = isHelp ? &help : find(name))
        return runCommand(*command, arguments.mid(0, 1) + rest);
    return isScene(name) ? runSceneFirst(name, rest) : unknown(name);
}
