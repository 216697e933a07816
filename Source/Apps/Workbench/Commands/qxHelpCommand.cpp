#include "Report/qxOutput.h"
#include "qxCommandTable.h"
#include "qxHelp.h"
#include "qxSuggestions.h"
#include "qxValueKind.h"

#include <QCommandLineParser>

namespace {

QList<QCommandLineOption> helpOptions()
{
    return {};
}

int runHelp(const QCommandLineParser &parser)
{
    const QString name = parser.positionalArguments().value(0);
    if (name.isEmpty()) {
        qxHelp::printOverview();
        return Success;
    }
    if (const qxCommand *command = qxCommands::find(name)) {
        qxHelp::print(*command);
        return Success;
    }
    return qxCommands::unknown(name);
}

} // namespace

void qxHelp::printOverview()
{
    QString text = QStringLiteral("Usage: workbench COMMAND FILE ... [options]\n"
                                  "       workbench [FILE], which opens a window\n"
                                  "       workbench --version\n\nCommands:\n");
    for (const qxCommand *command : qxCommands::all()) {
        const QString call = QStringLiteral("%1 %2").arg(command->name, command->arguments);
        text += QStringLiteral("  %1 %2\n").arg(call, -30).arg(command->summary);
    }
    qxOutput::text(
        text
        + QStringLiteral("\n\"workbench help COMMAND\" tells more about a command.\n"
                         "Exit codes: 0 done, 1 the work failed, 2 wrong use, 130 interrupted.\n"));
}

/// The parser's own text, but the command stands where it belongs: before the options.
void qxHelp::print(const qxCommand &command)
{
    QCommandLineParser parser;
    QString about = QString::fromUtf8(command.summary);
    if (command.details)
        about += QLatin1Char('\n') + QString::fromUtf8(command.details);
    parser.setApplicationDescription(about);
    for (const QString &argument : qxCommands::argumentsOf(command))
        parser.addPositionalArgument(argument, QString::fromUtf8(qxValueKinds::of(argument).help));
    parser.addOptions(qxCommands::optionsOf(command));
    const QString text = parser.helpText();
    qxOutput::line(
        QStringLiteral("Usage: workbench %1 %2 [options]").arg(command.name, command.arguments));
    qxOutput::text(text.mid(text.indexOf(QLatin1Char('\n')) + 1));
}

const qxCommand qxCommands::help = {
    "help", "[COMMAND]", "Tells about the commands, or about one.", 0, 1, helpOptions, runHelp};
