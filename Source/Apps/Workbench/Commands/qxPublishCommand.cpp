#include "qxVariants.h"

#include "Files/qxOutputFile.h"
#include "Publish/qxPublisher.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxInterrupt.h"
#include "Session/qxPictureOptions.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxSharedPictures.h"
#include "qxUnknownName.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <optional>

namespace {

QList<QCommandLineOption> publishOptions()
{
    return QList<QCommandLineOption>{
               {QStringLiteral("out"),
                QStringLiteral("The folder for the page, index.html, and its files. Browsers show "
                               "it from a server."),
                QStringLiteral("DIR")},
               {QStringLiteral("single-file"),
                QStringLiteral("One page with everything inside, which also opens from a disk."),
                QStringLiteral("HTML")},
               {QStringLiteral("groups"),
                QStringLiteral("Publishes the sets of this group alone; may be given several "
                               "times. Without it all visible groups, and sets without group."),
                QStringLiteral("GROUP")},
               {QStringLiteral("no-variants"),
                QStringLiteral("Publishes sets alone, without the states of single variants.")},
               {QStringLiteral("title"),
                QStringLiteral("Of the page; by default the name of the file."),
                QStringLiteral("TITLE")},
               {QStringLiteral("language"), QStringLiteral("Of the page; by default English."),
                QStringLiteral("en|de")},
               {QStringLiteral("compress"),
                QStringLiteral("Compresses meshes and pictures, so that the page loads faster.")},
               qxCommands::jsonOption(),
               qxCommands::traceOption()}
    + qxPictureOptions::all() + qxShardOptions::all();
}

int checkOptions(const QCommandLineParser &parser, qxSharedPictures &work)
{
    const int code = work.read({QStringLiteral("out"), QStringLiteral("single-file")});
    if (code != Success)
        return code;
    if (!work.makesParts() && !parser.isSet(QStringLiteral("out"))
        && !parser.isSet(QStringLiteral("single-file")))
        return qxCommands::fail(QStringLiteral("publish needs --out DIR or --single-file HTML"),
                                WrongUse);
    const QString language = parser.value(QStringLiteral("language"));
    if (!language.isEmpty() && language != QLatin1String("en") && language != QLatin1String("de"))
        return qxCommands::fail(QStringLiteral("--language is en or de, not \"%1\"").arg(language),
                                WrongUse);
    if (!qxPictureOptions::areKnown(parser))
        return WrongUse;
    const QString flaw = work.makesParts() ? QString() : qxPublishedPage::flaw();
    return flaw.isEmpty() ? work.begin(qxSharedPictures::previews()) : qxCommands::fail(flaw);
}

/// Success, or after saying why the page would replace the scene, something that it may be made of,
/// or itself.
int checkPlaces(const QCommandLineParser &parser)
{
    const QFileInfo file(parser.positionalArguments().first());
    const QString out = parser.value(QStringLiteral("out"));
    const QString single = parser.value(QStringLiteral("single-file"));
    const QString folder = QFileInfo(out).canonicalFilePath();
    if (!out.isEmpty()
        && (folder == QFileInfo(file.absolutePath()).canonicalFilePath()
            || folder == QFileInfo(file.canonicalFilePath()).path()))
        return qxCommands::fail(
            QStringLiteral("%1: the scene lies there; its page needs another folder").arg(out),
            WrongUse);
    if (single.isEmpty() || qxStreams::isStandard(single))
        return Success;
    if (qxOutputFile::isSame(single, file.filePath()))
        return qxCommands::fail(QStringLiteral("%1: a page must not replace its scene").arg(single),
                                WrongUse);
    const QString page = QDir(out).filePath(QStringLiteral("index.html"));
    if (!out.isEmpty() && qxOutputFile::isSame(single, page))
        return qxCommands::fail(
            QStringLiteral("%1: the page of --out is written there").arg(single), WrongUse);
    return Success;
}

/// Success, or after saying which group there is not.
int checkGroups(const QStringList &names)
{
    for (const QString &name : names) {
        if (!qxVariants::findVariantGroup(name))
            return qxCommands::fail(qxUnknownName::group(name));
    }
    return Success;
}

/// False, after saying why, if a file cannot be written; nothing is, as far as that is known
/// before. The page comes last, so that nothing half is ever seen.
bool writeFolder(const QDir &folder, const qxPublication &publication, qint64 &bytes)
{
    const QList<qxPageFiles::File> files = qxPublishedPage::folder(publication);
    for (const qxPageFiles::File &file : files) {
        const QString path = folder.filePath(file.first);
        if (!folder.mkpath(QFileInfo(file.first).path())) {
            qxOutput::error(
                QStringLiteral("%1: the folder cannot be made").arg(QFileInfo(path).path()));
            return false;
        }
        if (qxValueKinds::checkFile(path) != Success)
            return false;
    }
    for (const qxPageFiles::File &file : files) {
        if (!qxStreams::write(folder.filePath(file.first), file.second))
            return false;
        bytes += file.second.size();
    }
    return true;
}

struct Written {
    qint64 folder = 0; ///< bytes of all files
    qint64 single = 0;
};

/// False, after saying why, if something could not be written.
bool writePages(const QCommandLineParser &parser, const qxPublication &publication,
                Written &written)
{
    const QString folder = parser.value(QStringLiteral("out"));
    const QString single = parser.value(QStringLiteral("single-file"));
    if (!folder.isEmpty() && !writeFolder(QDir(folder), publication, written.folder))
        return false;
    if (single.isEmpty())
        return true;
    const QByteArray page = qxPublishedPage::single(publication);
    written.single = page.size();
    return qxStreams::write(single, page);
}

/// On standard error where the page itself went to standard output.
void report(const QCommandLineParser &parser, const Written &written, const qxLossReport &losses)
{
    const QString folder = parser.value(QStringLiteral("out"));
    const QString single = parser.value(QStringLiteral("single-file"));
    std::optional<qxCaughtOutput> caught;
    if (qxStreams::isStandard(single))
        caught.emplace(qxCaughtOutput::ToErrors);
    const bool isJson = parser.isSet(QStringLiteral("json"));
    QJsonObject object = isJson ? losses.toJson() : QJsonObject();
    const auto add = [&](const char *name, const QString &path, qint64 bytes) {
        if (isJson)
            object[QLatin1String(name)] =
                QJsonObject{{QStringLiteral("path"), path}, {QStringLiteral("bytes"), bytes}};
        else
            qxOutput::line(QStringLiteral("%1  %2 KB").arg(path).arg((bytes + 999) / 1000));
    };
    if (!folder.isEmpty())
        add("page", QDir(folder).filePath(QStringLiteral("index.html")), written.folder);
    if (!single.isEmpty() && !qxStreams::isStandard(single))
        add("singleFile", single, written.single);
    if (isJson)
        qxOutput::json(object);
    else
        losses.print();
}

qxPublisher::Wishes wishesOf(const QCommandLineParser &parser)
{
    qxPublisher::Wishes wishes;
    wishes.states.groups = parser.values(QStringLiteral("groups"));
    wishes.states.hasVariants = !parser.isSet(QStringLiteral("no-variants"));
    if (parser.isSet(QStringLiteral("language")))
        wishes.states.language = parser.value(QStringLiteral("language"));
    wishes.title = parser.isSet(QStringLiteral("title"))
        ? parser.value(QStringLiteral("title"))
        : QFileInfo(parser.positionalArguments().first()).completeBaseName();
    wishes.compress = parser.isSet(QStringLiteral("compress"));
    return wishes;
}

bool makePictures(qxPublisher &publisher, qxSharedPictures &work)
{
    const QStringList &names = publisher.withoutPreview();
    return publisher.makePoster() && work.visit(names, publisher.takePreview()) == names.size();
}

int runPublish(const QCommandLineParser &parser)
{
    qxSharedPictures work(qxCommands::publish, parser);
    int code = checkPlaces(parser);
    if (code == Success)
        code = checkOptions(parser, work);
    if (code != Success)
        return code;
    if (!qxPictureOptions::apply(parser))
        return WorkFailed;
    // Scripts do not run in browsers: neither may pictures show what they do.
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first())
        || checkGroups(parser.values(QStringLiteral("groups"))) != Success)
        return WorkFailed;

    qxSetPreviews::prepare(parser);
    const qxInterrupt interrupt;
    qxPublisher publisher;
    if (work.makesParts()) {
        publisher.addStates(session.file(), wishesOf(parser));
        return work.makeParts(publisher.withoutPreview());
    }
    const QString flaw = publisher.describe(session.file(), wishesOf(parser));
    if (!flaw.isEmpty())
        return qxCommands::fail(flaw);
    if (!makePictures(publisher, work))
        return qxCommands::endedEarly(QStringLiteral("nothing was written"),
                                      QStringLiteral("a picture failed"));
    Written written;
    if (!writePages(parser, publisher.publication(), written))
        return WorkFailed;
    report(parser, written, publisher.losses());
    return Success;
}

} // namespace

const qxCommand qxCommands::publish = {
    "publish",
    "FILE",
    "Writes an interactive web page of the scene and its sets.",
    1,
    1,
    publishOptions,
    runPublish,
    "Browsers need no program and no network for it: the folder is put on a web server, the single "
    "file opens from a disk. Selecting a set shows there what it shows here, but for scripts, "
    "which stay behind. At the end the command lists what is not carried."};
