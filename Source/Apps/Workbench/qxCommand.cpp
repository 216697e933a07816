#include "qxCommand.h"

#include "qxOutput.h"

#include <QCommandLineParser>

namespace {

const qxCommand *const commands[] = {
    &qxCommands::info, &qxCommands::list,   &qxCommands::state,    &qxCommands::select,
    &qxCommands::set,  &qxCommands::create, &qxCommands::document,
};

QString overview()
{
    QString text = QStringLiteral("Usage: workbench COMMAND FILE ... [options]\n\nCommands:\n");
    for (const qxCommand *command : commands) {
        const QString call = QStringLiteral("%1 %2").arg(command->name, command->arguments);
        text += QStringLiteral("  %1 %2\n").arg(call, -30).arg(command->summary);
    }
    return text
        + QStringLiteral("\n\"workbench COMMAND --help\" tells more about a command.\n"
                         "Exit codes: 0 done, 1 the work failed, 2 wrong use.\n");
}

int wrongUse(const QString &reason, const QString &hint)
{
    qxOutput::error(QStringLiteral("%1\n%2").arg(reason, hint));
    return WrongUse;
}

int runCommand(const qxCommand &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(command.summary));
    parser.addPositionalArgument(QString::fromUtf8(command.arguments), QString(),
                                 QString::fromUtf8("%1 %2").arg(command.name, command.arguments));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this text."));
    parser.addOption(help);
    parser.addOptions(command.options());

    const QString hint = QStringLiteral("Try \"workbench %1 --help\".").arg(command.name);
    if (!parser.parse(arguments))
        return wrongUse(parser.errorText(), hint);
    if (parser.isSet(help)) {
        qxOutput::text(parser.helpText());
        return Success;
    }
    const int count = parser.positionalArguments().size();
    if (count < command.minimum)
        return wrongUse(QStringLiteral("%1 needs %2").arg(command.name, command.arguments), hint);
    if (command.maximum >= 0 && count > command.maximum)
        return wrongUse(QStringLiteral("too many arguments for %1").arg(command.name), hint);
    return command.run(parser);
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

int qxCommands::fail(const QString &reason)
{
    qxOutput::error(reason);
    return WorkFailed;
}
