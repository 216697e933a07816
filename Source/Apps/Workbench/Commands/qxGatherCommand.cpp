#include "Report/qxStreams.h"
#include "Session/qxMemoryLimit.h"
#include "Session/qxPartsFolder.h"
#include "Session/qxShardPlan.h"
#include "qxCommand.h"
#include "qxCommandTable.h"
#include "qxShardOptions.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>

namespace {

QList<QCommandLineOption> gatherOptions()
{
    return {{QStringLiteral("save"),
             QStringLiteral("What the command would have made: a scene of previews, pictures in a "
                            "folder or on a sheet, a catalogue or a page in a folder, a page in "
                            "one file, a report, which - prints alone."),
             QStringLiteral("RESULT")},
            qxCommands::jsonOption(),
            {QStringLiteral("junit"), QStringLiteral("Writes a lint as JUnit XML.")},
            qxCommands::traceOption(),
            qxMemoryLimit::option()};
}

/// How the command calls that output.
QString outputOption(const QString &command, const QString &out)
{
    if (command == QLatin1String("previews"))
        return QStringLiteral("--save");
    if (command == QLatin1String("verify") || command == QLatin1String("lint"))
        return QStringLiteral("--report");
    const bool isPage = out.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
    return command == QLatin1String("publish") && isPage ? QStringLiteral("--single-file")
                                                         : QStringLiteral("--out");
}

/// A plan is a file like any other: it must not have any command run.
bool isShared(const QString &name)
{
    const qxCommand *const command = qxCommands::find(name);
    const QList<QCommandLineOption> options =
        command ? command->options() : QList<QCommandLineOption>();
    return std::any_of(options.begin(), options.end(), [](const QCommandLineOption &option) {
        return option.names() == qxShardOptions::all().first().names();
    });
}

/// Runs the command of the plan, which takes its parts from the folder.
int runGather(const QCommandLineParser &parser)
{
    const QString folder = parser.positionalArguments().first();
    const QString out = parser.value(QStringLiteral("save"));
    if (out.isEmpty())
        return qxCommands::fail(QStringLiteral("gather needs --save OUT"), WrongUse);
    const qxPartsFolder parts(folder);
    qxShardPlan plan;
    if (!parts.readPlan(plan))
        return WorkFailed;
    if (!isShared(plan.command.first()) || !QFileInfo(plan.scene.path).isAbsolute())
        return qxCommands::fail(
            QStringLiteral("%1: the plan is for \"%2\", which no shards work on")
                .arg(folder, plan.command.first()));
    QStringList words{QStringLiteral("workbench"), plan.command.first(), plan.scene.path};
    words += plan.command.mid(1);
    words += {QStringLiteral("--parts"), folder, outputOption(plan.command.first(), out), out};
    for (const char *const option : {"force", "json", "junit", "trace", "memory-limit"}) {
        const QString name = QLatin1String(option);
        if (!parser.optionNames().contains(name))
            continue;
        words += QStringLiteral("--") + name;
        if (!parser.value(name).isEmpty())
            words += parser.value(name);
    }
    return qxCommands::dispatch(words);
}

} // namespace

const qxCommand qxCommands::gather = {
    "gather",
    "DIR",
    "Puts together what shards have made.",
    1,
    1,
    gatherOptions,
    runGather,
    "The commands render, previews, catalogue, publish, verify and lint make parts of their "
    "results with --parts "
    "DIR --shard I/N, in as many processes and on as many machines as there are. This makes the "
    "result of the parts, the same bytes as one process would have made; it refuses to when parts "
    "are missing, and names them."};
