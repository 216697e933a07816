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
    QString text = QStringLiteral("Usage: workbench %1\n\nCommands:\n")
                       .arg(uses().join(QLatin1String("\n       workbench ")));
    for (const qxCommand *command : qxCommands::all()) {
        const QString call = QStringLiteral("%1 %2").arg(command->name, command->arguments);
        text += QStringLiteral("  %1 %2\n").arg(call, -30).arg(command->summary);
    }
    qxOutput::text(text
                   + QStringLiteral("\n\"workbench help COMMAND\" tells more about a command.\n"
                                    "Exit codes: %1\n")
                         .arg(exitCodes()));
}

QStringList qxHelp::uses()
{
    return {QStringLiteral("COMMAND FILE ... [options]"),
            QStringLiteral("[FILE], which opens a window"), QStringLiteral("--version")};
}

QString qxHelp::exitCodes()
{
    return QStringLiteral("0 done, 1 the work failed, 2 wrong use, 130 interrupted.");
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
        parser.addPositionalArgument(
            argument, QString::fromUtf8(qxValueKinds::ofArgument(command, argument).help));
    parser.addOptions(qxCommands::optionsOf(command));
    const QString text = parser.helpText();
    const QStringList call =
        QStringList{QLatin1String(command.name)} + qxCommands::argumentsOf(command);
    qxOutput::line(
        QStringLiteral("Usage: workbench %1 [options]").arg(call.join(QLatin1Char(' '))));
    qxOutput::text(text.mid(text.indexOf(QLatin1Char('\n')) + 1));
}

const qxCommand qxCommands::help = {
    "help", "[COMMAND]", "Tells about the commands, or about one.", 0, 1, helpOptions, runHelp};
