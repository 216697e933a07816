#include "Report/qxOutput.h"
#include "Session/qxGitSetup.h"
#include "qxCommand.h"

#include <QCommandLineParser>

namespace {

QList<QCommandLineOption> gitSetupOptions()
{
    return {{QStringLiteral("global"),
             QStringLiteral("For all repositories of this user instead of the one around the "
                            "current folder.")},
            {QStringLiteral("dry-run"),
             QStringLiteral("Tells what would be written, and writes nothing.")}};
}

int runGitSetup(const QCommandLineParser &parser)
{
    const bool isDry = parser.isSet(QStringLiteral("dry-run"));
    qxGitSetup setup(parser.isSet(QStringLiteral("global")));
    const bool isDone = setup.read() && (isDry || setup.write());
    for (const QString &line : setup.report())
        qxOutput::line(line);
    return isDone ? Success : qxCommands::fail(setup.errorString());
}

} // namespace

const qxCommand qxCommands::gitSetup = {
    "git-setup",
    "",
    "Has git compare and merge scenes and variants documents by this program.",
    0,
    0,
    gitSetupOptions,
    runGitSetup,
    "Adds lines for *.gltf, *.glb and *.variants.xml to .gitattributes, unless there are some for "
    "them, and a driver for merging and one for comparing to git's configuration. Variants "
    "documents without a scene are those whose names end in .variants.xml. Everybody who uses the "
    "repository runs this once."};
