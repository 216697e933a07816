#include "qxValueKind.h"

#include "Files/qxOutputFile.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

const qxValueKind valueKinds[] = {
    {"FILE", "A scene file, .gltf or .glb.", qxValueKind::File, "gltf|glb"},
    {"BEFORE", "A scene file, or a variants document alone.", qxValueKind::File, "gltf|glb|xml"},
    {"AFTER", "What became of it, or any other one.", qxValueKind::File, "gltf|glb|xml"},
    {"BASE", "What both sides began with: a scene file, or a variants document alone.",
     qxValueKind::File, "gltf|glb|xml"},
    {"OURS", "What one side made of it.", qxValueKind::File, "gltf|glb|xml"},
    {"THEIRS", "What the other side made of it.", qxValueKind::File, "gltf|glb|xml"},
    {"MERGED", nullptr, qxValueKind::File, "gltf|glb|xml"},
    {"ours|theirs", nullptr, qxValueKind::Word, ""},
    {"SCRIPT",
     "A file with Python source, - for standard input. What follows -- on the command line is in "
     "its sys.argv.",
     qxValueKind::File, "py"},
    {"SET", "Name of a variant set.", qxValueKind::Word, ""},
    {"SET...", "Names of variant sets.", qxValueKind::Word, ""},
    {"NAME", "Name of the new variant set.", qxValueKind::Word, ""},
    {"VARIANT", "Name of a variant.", qxValueKind::Word, ""},
    {"STATE", "Name of one of its states.", qxValueKind::Word, ""},
    {"COMMAND", "Name of a command.", qxValueKind::Word, ""},
    {"OUT", nullptr, qxValueKind::File, "gltf|glb"},
    {"GLB", nullptr, qxValueKind::File, "glb"},
    {"KIND", "What is renamed, see above.", qxValueKind::Word, ""},
    {"OLD", "Its name.", qxValueKind::Word, ""},
    {"NEW", "Its name to be.", qxValueKind::Word, ""},
    {"SCENE|XML", nullptr, qxValueKind::File, "gltf|glb|xml"},
    {"PICTURE", nullptr, qxValueKind::File, "hdr|pic|exr"},
    {"GROUP", nullptr, qxValueKind::Word, ""},
    {"TITLE", nullptr, qxValueKind::Word, ""},
    {"en|de", nullptr, qxValueKind::Word, ""},
    {"XML", nullptr, qxValueKind::File, "xml"},
    {"HTML", nullptr, qxValueKind::File, "html"},
    {"CSV", nullptr, qxValueKind::File, "csv"},
    {"TXT|JSON|XML", nullptr, qxValueKind::File, "txt|json|xml"},
    {"PNG|DIR", nullptr, qxValueKind::FileOrFolder, "png"},
    {"RESULT", nullptr, qxValueKind::FileOrFolder, "gltf|glb|png|html|csv|txt|json|xml"},
    {"DIR", "The folder that --plan and --shard were given as --parts.", qxValueKind::Folder, ""},
};

/// The options that name what a command writes.
const QStringList &outputs()
{
    static const QStringList names{QStringLiteral("save"), QStringLiteral("out"),
                                   QStringLiteral("report"), QStringLiteral("html"),
                                   QStringLiteral("single-file")};
    return names;
}

int fail(qxExitCode code, const QString &name, const QString &reason)
{
    qxOutput::error(QStringLiteral("%1: %2").arg(name, reason));
    return code;
}

/// A scene is written in the form that its suffix says, and may have files beside it.
int checkScene(const QCommandLineOption &option, const QString &name)
{
    const QString suffix = QFileInfo(name).suffix().toLower();
    const bool isExport = option.valueName() == QLatin1String("GLB");
    if (qxStreams::isStandard(name))
        return fail(WrongUse, QStringLiteral("--%1 -").arg(option.names().first()),
                    QStringLiteral("a scene is saved to a file, not to standard output"));
    if (suffix != QLatin1String("glb") && isExport)
        return fail(WrongUse, name, QStringLiteral("exported scenes end in .glb"));
    if (suffix != QLatin1String("gltf") && suffix != QLatin1String("glb"))
        return fail(WrongUse, name, QStringLiteral("scene files end in .gltf or .glb"));
    return qxValueKinds::checkFile(name);
}

/// Those of the kind but for scenes, which are checked otherwise.
QStringList textSuffixesOf(const qxValueKind &kind)
{
    QStringList suffixes = QString::fromLatin1(kind.suffixes).split(QLatin1Char('|'));
    suffixes.removeAll(QStringLiteral("gltf"));
    suffixes.removeAll(QStringLiteral("glb"));
    return suffixes;
}

/// A file of another suffix may be one that is dear to its owner, such as the scene itself.
int checkText(const QString &name, const QStringList &suffixes)
{
    const bool isStream = qxStreams::isStandard(name) || qxOutputFile::isStream(name);
    if (!isStream && !suffixes.contains(QFileInfo(name).suffix().toLower()))
        return fail(WrongUse, name,
                    QStringLiteral("what is written there ends in .%1")
                        .arg(suffixes.join(QStringLiteral(" or ."))));
    return qxValueKinds::checkFile(name);
}

/// Of an output that is a scene or a document, whether the name is that of a scene.
bool isSceneOrText(const QCommandLineOption &option, const QString &name)
{
    return option.valueName() == QLatin1String("SCENE|XML")
        && QFileInfo(name).suffix().toLower() != QLatin1String("xml");
}

} // namespace

qxValueKind qxValueKinds::of(const QString &name)
{
    static const QRegularExpression brackets(QStringLiteral("[][]"));
    const QString plain = QString(name).remove(brackets);
    for (const qxValueKind &kind : valueKinds) {
        if (plain == QLatin1String(kind.name))
            return kind;
    }
    return {"", nullptr, qxValueKind::Word, ""};
}

qxValueKind qxValueKinds::ofArgument(const qxCommand &command, const QString &name)
{
    const QList<QCommandLineOption> options = command.options();
    const bool takesDocuments =
        std::any_of(options.begin(), options.end(), [](const QCommandLineOption &option) {
            return option.valueName() == QLatin1String("SCENE|XML");
        });
    return of(takesDocuments && name == QLatin1String("FILE") ? QStringLiteral("BEFORE") : name);
}

int qxValueKinds::checkFile(const QString &name)
{
    const QString flaw = qxStreams::isStandard(name) ? QString() : qxOutputFile::flawOf(name);
    return flaw.isEmpty() ? Success : fail(WorkFailed, name, flaw);
}

int qxValueKinds::checkFolder(const QString &name)
{
    const QFileInfo folder(name);
    if (qxStreams::isStandard(name))
        return fail(WrongUse, QStringLiteral("--out -"),
                    QStringLiteral("a folder is written, not standard output"));
    if (!folder.exists())
        return fail(WorkFailed, name, QStringLiteral("the folder does not exist"));
    if (!folder.isDir())
        return fail(WorkFailed, name, QStringLiteral("it is no folder"));
    return folder.isWritable()
        ? Success
        : fail(WorkFailed, name, QStringLiteral("nothing may be written to the folder"));
}

int qxValueKinds::checkOutputs(const qxCommand &command, const QCommandLineParser &parser)
{
    for (const QCommandLineOption &option : command.options()) {
        if (!outputs().contains(option.names().first()) || !parser.isSet(option))
            continue;
        const QString name = parser.value(option);
        const qxValueKind kind = of(option.valueName());
        int code = Success;
        if (kind.place == qxValueKind::Folder)
            code = checkFolder(name);
        else if (kind.place == qxValueKind::File)
            code = option.valueName() == QLatin1String("MERGED") ? checkFile(name)
                : option.valueName() == QLatin1String("OUT")
                    || option.valueName() == QLatin1String("GLB") || isSceneOrText(option, name)
                ? checkScene(option, name)
                : checkText(name, textSuffixesOf(kind));
        if (code != Success)
            return code;
    }
    return Success;
}
