#include "Report/qxDiffPage.h"
#include "Report/qxDiffReport.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxFileComparison.h"
#include "Session/qxMemoryLimit.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

/// As diff(1) has them.
enum ExitCode { Same = 0, Different = 1, Trouble = 2 };

QList<QCommandLineOption> diffOptions()
{
    return {{QStringLiteral("brief"), QStringLiteral("Names what differs, and leaves out how.")},
            qxCommands::jsonOption(),
            {QStringLiteral("html"),
             QStringLiteral("Writes a page with the previews beside each other to HTML; - is "
                            "standard output."),
             QStringLiteral("HTML")},
            {QStringLiteral("label"),
             QStringLiteral("Calls the first file NAME, and given again, the second one."),
             QStringLiteral("NAME")},
            qxMemoryLimit::option()};
}

int report(const qxFileComparison &comparison, const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("html"))) {
        const QByteArray page = qxDiffPage::html(comparison);
        if (!qxStreams::write(parser.value(QStringLiteral("html")), page))
            return Trouble;
    } else if (parser.isSet(QStringLiteral("json"))) {
        qxOutput::json(qxDiffReport::json(comparison));
    } else {
        qxDiffReport::print(comparison, parser.isSet(QStringLiteral("brief")));
    }
    return comparison.isDifferent() ? Different : Same;
}

int runDiff(const QCommandLineParser &parser)
{
    const QStringList forms{QStringLiteral("brief"), QStringLiteral("json"),
                            QStringLiteral("html")};
    QStringList given;
    for (const QString &each : forms) {
        if (parser.isSet(each))
            given += QLatin1String("--") + each;
    }
    if (given.size() > 1)
        return qxCommands::fail(
            given.join(QStringLiteral(" and ")) + QStringLiteral(" do not go together"), WrongUse);
    const QStringList labels = parser.values(QStringLiteral("label"));
    if (labels.size() > 2)
        return qxCommands::fail(QStringLiteral("there are two files, and more labels"), WrongUse);
    qxFileComparison comparison;
    const QStringList files = parser.positionalArguments();
    if (!comparison.compare(files[0], files[1]))
        return Trouble;
    comparison.nameBefore = labels.value(0, files[0]);
    comparison.nameAfter = labels.value(1, files[1]);
    return report(comparison, parser);
}

} // namespace

const qxCommand qxCommands::diff = {
    "diff",
    "BEFORE AFTER",
    "Tells what differs between the variants of two files.",
    2,
    2,
    diffOptions,
    runDiff,
    "The files are scenes, or variants documents without one; an empty one is a document without "
    "variants. Of two scenes it also tells, by names, what else differs in them. The exit code is "
    "0 "
    "when nothing differs, 1 when something does, 2 when that cannot be told.",
    Trouble};
