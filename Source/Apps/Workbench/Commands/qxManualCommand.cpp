#include "Report/qxStreams.h"
#include "Session/qxMemoryLimit.h"
#include "qxCommandTable.h"
#include "qxHelp.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

namespace {

/// Text for troff: a hyphen that can be copied into a shell, and nothing that it would obey.
QString plain(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\e"))
        .replace(QLatin1Char('-'), QLatin1String("\\-"))
        .replace(QLatin1Char('\''), QLatin1String("\\(aq"))
        .replace(QLatin1String("\n."), QLatin1String("\n\\&."));
}

QString bold(const QString &text)
{
    return QStringLiteral("\\fB%1\\fR").arg(plain(text));
}

/// Place holders, such as those in "FILE SET...", in italics.
QString call(const QString &text)
{
    static const QRegularExpression placeHolder(QStringLiteral("([A-Z]+)"));
    return plain(text).replace(placeHolder, QStringLiteral("\\fI\\1\\fR"));
}

/// The command with its arguments.
QString callOf(const qxCommand &command, const QString &program)
{
    QStringList words{bold(program + QLatin1String(command.name))};
    for (const QString &argument : qxCommands::argumentsOf(command))
        words += call(argument);
    return words.join(QLatin1Char(' '));
}

QString section(const char *title)
{
    return QStringLiteral(".SH %1\n").arg(QLatin1String(title));
}

QString entry(const QString &term, const QString &text)
{
    return QStringLiteral(".TP\n%1\n%2\n").arg(term, plain(text));
}

QString head(const QString &name, const QString &title)
{
    return QStringLiteral(".TH %1 1 \"\" \"Workbench %2\" \"User Commands\"\n.nh\n.ad l\n")
               .arg(plain(name.toUpper()), QCoreApplication::applicationVersion())
        + section("NAME") + QStringLiteral("%1 \\- %2\n").arg(plain(name), plain(title))
        + section("SYNOPSIS");
}

QString optionEntries(const QList<QCommandLineOption> &options)
{
    QString text;
    for (const QCommandLineOption &option : options) {
        QStringList names;
        for (const QString &name : option.names())
            names += bold((name.size() > 1 ? QStringLiteral("--") : QStringLiteral("-")) + name);
        const QString value = option.valueName();
        text += entry(names.join(QLatin1String(", "))
                          + (value.isEmpty() ? value : QLatin1Char(' ') + call(value)),
                      option.description());
    }
    return text;
}

QString endOf(const QList<QCommandLineOption> &options, const QString &seeAlso)
{
    return section("OPTIONS") + optionEntries(options) + section("EXIT STATUS")
        + plain(qxHelp::exitCodes()) + QLatin1Char('\n') + section("SEE ALSO") + seeAlso
        + QLatin1Char('\n');
}

QString pageOf(const qxCommand &command)
{
    const QString name = QLatin1String(command.name);
    const QString summary = QString::fromUtf8(command.summary);
    const QStringList arguments = qxCommands::argumentsOf(command);
    QString text = head(QStringLiteral("workbench-") + name, summary.left(summary.size() - 1));
    text += callOf(command, QStringLiteral("workbench ")) + QLatin1String(" [options]\n")
        + section("DESCRIPTION") + plain(summary) + QLatin1Char('\n');
    if (command.details)
        text += QStringLiteral(".PP\n%1\n").arg(plain(QString::fromUtf8(command.details)));
    if (!arguments.isEmpty())
        text += section("ARGUMENTS");
    for (const QString &argument : arguments)
        text += entry(call(argument),
                      QString::fromUtf8(qxValueKinds::ofArgument(command, argument).help));
    return text + endOf(qxCommands::optionsOf(command), QStringLiteral(".BR workbench (1)"));
}

QString pageOfProgram()
{
    QStringList uses;
    for (const QString &use : qxHelp::uses())
        uses += bold(QStringLiteral("workbench")) + QLatin1Char(' ') + call(use);
    QString text = head(QStringLiteral("workbench"), QStringLiteral("variants of glTF scenes"))
        + uses.join(QLatin1String("\n.br\n")) + QLatin1Char('\n') + section("COMMANDS");
    QStringList pages;
    for (const qxCommand *command : qxCommands::all()) {
        const QString name = QLatin1String(command->name);
        text += entry(callOf(*command, QString()), QString::fromUtf8(command->summary));
        pages += QStringLiteral(".BR workbench\\-%1 (1)").arg(name);
    }
    return text
        + endOf(QList<QCommandLineOption>{qxMemoryLimit::option()}
                    + qxCommands::optionsOf(qxCommands::help),
                pages.join(QLatin1String(",\n")));
}

QList<QCommandLineOption> manualOptions()
{
    return {{QStringLiteral("out"), QStringLiteral("Writes the pages to the folder DIR."),
             QStringLiteral("DIR")}};
}

int runManual(const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("out")))
        return qxCommands::fail(QStringLiteral("manual needs --out DIR"), WrongUse);
    const QDir folder(parser.value(QStringLiteral("out")));
    bool areWritten =
        qxStreams::write(folder.filePath(QStringLiteral("workbench.1")), pageOfProgram().toUtf8());
    for (const qxCommand *command : qxCommands::all())
        areWritten =
            areWritten
            && qxStreams::write(
                folder.filePath(QStringLiteral("workbench-%1.1").arg(QLatin1String(command->name))),
                pageOf(*command).toUtf8());
    return areWritten ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::manual = {
    "manual",      "",       "Writes the manual pages of the program and of these commands.", 0, 0,
    manualOptions, runManual};
