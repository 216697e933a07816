#include "Report/qxStreams.h"
#include "Session/qxMemoryLimit.h"
#include "Session/qxPartsFolder.h"
#include "Session/qxShardPlan.h"
#include "qxCommand.h"
#include "qxCommandTable.h"

#include <QCommandLineParser>
#include <QDir>

namespace {

QList<QCommandLineOption> gatherOptions()
{
    return {{QStringLiteral("save"),
             QStringLiteral("What the command would have made: a scene of previews, pictures in a "
                            "folder or on a sheet, a catalogue or a page in a folder, a page in "
                            "one file, a report."),
             QStringLiteral("SCENE|PNG|DIR|HTML|CSV")},
            qxCommands::jsonOption(), qxCommands::traceOption(), qxMemoryLimit::option()};
}

/// How the command calls that output.
QString outputOption(const QString &command, const QString &out)
{
    if (command == QLatin1String("previews"))
        return QStringLiteral("--save");
    const bool isPage = out.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
    return command == QLatin1String("publish") && isPage ? QStringLiteral("--single-file")
                                                         : QStringLiteral("--out");
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
    QStringList words{QStringLiteral("workbench"), plan.command.first(), plan.scene.path};
    words += plan.command.mid(1);
    words += {QStringLiteral("--parts"), folder, outputOption(plan.command.first(), out), out};
    for (const char *const option : {"force", "json", "trace", "memory-limit"}) {
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
    "The commands render, previews, catalogue and publish make parts of their results with --parts "
    "DIR --shard I/N, in as many processes and on as many machines as there are. This makes the "
    "result of the parts, the same bytes as one process would have made; it refuses to when parts "
    "are missing, and names them."};
