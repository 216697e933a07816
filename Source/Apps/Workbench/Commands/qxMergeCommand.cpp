#include "Report/qxMergeReport.h"
#include "Report/qxOutput.h"
#include "Session/qxFileMerge.h"
#include "Session/qxMemoryLimit.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

/// As far as they differ from those of other commands.
enum MergeExit { Clean = 0, Conflicts = 1, NothingWritten = 2 };

QList<QCommandLineOption> mergeOptions()
{
    return {{QStringLiteral("out"),
             QStringLiteral("Writes the result to MERGED, which may be one of the three."),
             QStringLiteral("MERGED")},
            {QStringLiteral("prefer"),
             QStringLiteral("Decides conflicts for one side instead of keeping both."),
             QStringLiteral("ours|theirs")},
            {QStringLiteral("label"),
             QStringLiteral("Calls the file NAME in the list of conflicts and in messages."),
             QStringLiteral("NAME")},
            qxCommands::jsonOption(),
            qxMemoryLimit::option()};
}

int runMerge(const QCommandLineParser &parser)
{
    const QString out = parser.value(QStringLiteral("out"));
    const QString prefer = parser.value(QStringLiteral("prefer"));
    if (out.isEmpty())
        return qxCommands::fail(QStringLiteral("merge needs --out MERGED"), WrongUse);
    if (!prefer.isEmpty() && prefer != QLatin1String("ours") && prefer != QLatin1String("theirs"))
        return qxCommands::fail(QStringLiteral("--prefer is ours or theirs"), WrongUse);
    const qxMergePreference preference = prefer.isEmpty() ? qxMergePreference::Both
        : prefer == QLatin1String("ours")                 ? qxMergePreference::Ours
                                                          : qxMergePreference::Theirs;
    const QStringList files = parser.positionalArguments();
    const QString label = parser.value(QStringLiteral("label"));
    qxFileMerge merge;
    if (!merge.merge({files[0], files[1], files[2], label}, preference) || !merge.save(out))
        return NothingWritten;
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(qxMergeReport::json(merge));
    else
        qxOutput::text(qxMergeReport::text(merge, label.isEmpty() ? out : label));
    return merge.isClean() || preference != qxMergePreference::Both ? Clean : Conflicts;
}

} // namespace

const qxCommand qxCommands::merge = {
    "merge",
    "BASE OURS THEIRS",
    "Brings together what two sides made of one file.",
    3,
    3,
    mergeOptions,
    runMerge,
    "The files are scenes, or variants documents without one. What both sides changed differently "
    "is listed, and both versions are written: theirs as a second set, variant or group, called "
    "NAME (theirs); in all else of the scene ours is taken where both differ. The exit code is 0 "
    "when nothing is open, "
    "1 when there are such conflicts, 2 when nothing could be written."};
