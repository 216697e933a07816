#include "Core/qxVisibleText.h"
#include "Report/qxOutput.h"
#include "Session/qxSession.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <cstdio>
#include <unistd.h>

namespace {

typedef qxTrustStore::Decision Decision;

struct Answer {
    const char *option;
    const char *help;
    Decision decision;
    const char *done;
};

const Answer answers[] = {
    {"yes", "Trusts them: they run when their sets are selected.", qxTrustStore::Trusted,
     "trusted"},
    {"never", "Has them never run, and does not ask again.", qxTrustStore::Never, "never run"},
    {"forget", "Forgets what was decided about them.", qxTrustStore::Undecided, "undecided"},
};

QList<QCommandLineOption> trustOptions()
{
    QList<QCommandLineOption> options;
    for (const Answer &answer : answers)
        options << QCommandLineOption(QLatin1String(answer.option), QLatin1String(answer.help));
    return options << qxCommands::traceOption();
}

QString wordFor(Decision decision)
{
    for (const Answer &answer : answers) {
        if (answer.decision == decision)
            return QLatin1String(answer.done);
    }
    return QString();
}

void print(const QList<qxFileScripts::Script> &scripts)
{
    for (const qxFileScripts::Script &script : scripts) {
        qxOutput::line(QStringLiteral("%1 (%2)").arg(script.set, wordFor(script.decision)));
        const QString text = qxVisibleText::code(script.text);
        for (const QString &line : text.split(QLatin1Char('\n')))
            qxOutput::text(QStringLiteral("  %1\n").arg(line));
    }
}

/// What the person at the terminal says; null for no decision.
const Answer *ask()
{
    std::fputs("Trust these scripts? [y] yes  [n] never  [Enter] not now: ", stderr);
    const QString said = QTextStream(stdin).readLine().trimmed().toLower();
    if (said == QLatin1String("y") || said == QLatin1String("yes"))
        return &answers[0];
    if (said == QLatin1String("n") || said == QLatin1String("never"))
        return &answers[1];
    return nullptr;
}

int runTrust(const QCommandLineParser &parser)
{
    QList<const Answer *> given;
    for (const Answer &answer : answers) {
        if (parser.isSet(QLatin1String(answer.option)))
            given << &answer;
    }
    if (given.size() > 1)
        return qxCommands::fail(
            QStringLiteral("--%1 and --%2 do not go together")
                .arg(QLatin1String(given[0]->option), QLatin1String(given[1]->option)),
            WrongUse);
    const QString file = parser.positionalArguments().first();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(file))
        return WorkFailed;
    const QList<qxFileScripts::Script> scripts = session.scripts().list();
    if (scripts.isEmpty()) {
        qxOutput::line(QStringLiteral("no scripts"));
        return Success;
    }
    print(scripts);
    const Answer *answer = given.value(0);
    if (!answer && isatty(fileno(stdin)))
        answer = ask();
    if (!answer)
        return Success;
    const QString reason = session.scripts().decide(scripts, answer->decision, file);
    return reason.isEmpty() ? Success : qxCommands::fail(reason);
}

} // namespace

const qxCommand qxCommands::trust = {
    "trust",
    "FILE",
    "Shows the scripts of sets, and decides whether they may run.",
    1,
    1,
    trustOptions,
    runTrust,
    "Without an option it asks, if there is a terminal to ask at. What is decided holds for these\n"
    "scripts in any file, for the window as well; a script that was changed is another one."};
