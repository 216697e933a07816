#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxInterrupt.h"
#include "Session/qxPictureOptions.h"
#include "Session/qxSession.h"
#include "Session/qxSetPictures.h"
#include "qxCommand.h"
#include "qxSharedPictures.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QList<QCommandLineOption> catalogueOptions()
{
    return QList<QCommandLineOption>{{QStringLiteral("out"),
                                      QStringLiteral("The folder for the page, index.html."),
                                      QStringLiteral("DIR")},
                                     qxCommands::scriptsOption(),
                                     qxCommands::noScriptsOption(),
                                     qxShardOptions::json(),
                                     qxCommands::traceOption()}
    + qxPictureOptions::all() + qxShardOptions::all();
}

qxSharedPictures::Product product()
{
    return {qxSetPictures::pageSize,
            [] { return qxSetPreviews::fingerprint(qxSetPictures::pageSize); },
            qxSetPictures::ofSize(qxSetPictures::pageSize)};
}

/// The pictures of sets: those made here, and where those lie that shards have made.
struct PagePictures {
    qxCataloguePage::Pictures pictures;
    QMap<QString, QString> files;
};

/// Pictures that lie in files are not kept in memory.
qxSetPreviews::Take takeForPage(PagePictures &made, const qxSharedPictures &work)
{
    const QMap<QString, QString> parts = work.files();
    if (parts.isEmpty())
        return qxSetPictures::onPage(made.pictures);
    return [&made, parts](const QString &name, const QByteArray &) {
        made.files[name] = parts[name];
        return true;
    };
}

/// The picture of a set; of what lies in a file and cannot be shown, `flaw` says so.
qxCataloguePage::Picture pagePictureOf(const QString &set, const PagePictures &made, QString &flaw)
{
    const QString path = made.files.value(set);
    if (path.isEmpty())
        return made.pictures.value(set);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        flaw = path + QStringLiteral(": ") + file.errorString();
        return {};
    }
    const qxCataloguePage::Picture picture = qxSetPictures::onPage(file.readAll());
    if (picture.large.isEmpty())
        flaw = path + QStringLiteral(": it is no picture");
    return picture;
}

qxOutputFile::Content cataloguePageOf(const QString &title, const PagePictures &made)
{
    return [title, &made](const qxOutputFile::Sink &sink) {
        QString flaw;
        const auto give = [&](const QString &set) { return pagePictureOf(set, made, flaw); };
        const QString reason = qxCataloguePage::html(title, give)(sink);
        return flaw.isEmpty() ? reason : flaw;
    };
}

int runCatalogue(const QCommandLineParser &parser)
{
    qxSharedPictures work(qxCommands::catalogue, parser);
    int code = work.read({QStringLiteral("out")});
    if (code != Success)
        return code;
    if (!work.makesParts() && !parser.isSet(QStringLiteral("out")))
        return qxCommands::fail(QStringLiteral("catalogue needs --out DIR"), WrongUse);
    if (!qxPictureOptions::areKnown(parser))
        return WrongUse;
    const QDir folder(parser.value(QStringLiteral("out")));
    const QString page = folder.filePath(QStringLiteral("index.html"));
    code = work.makesParts() ? Success : qxValueKinds::checkFile(page);
    if (code == Success)
        code = work.begin(product());
    if (code != Success)
        return code;
    if (!qxPictureOptions::apply(parser))
        return WorkFailed;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    const QString file = parser.positionalArguments().first();
    if (!session.open(file))
        return WorkFailed;

    qxSetPreviews::prepare(parser, qxSetPictures::pageSamples);
    const qxInterrupt interrupt;
    const QStringList names = qxSetPreviews::allNames();
    if (work.makesParts())
        return work.makeParts(names);
    PagePictures made;
    const int done = work.visit(names, takeForPage(made, work));
    if (done < 0)
        return WorkFailed;
    if (qxInterrupt::isAsked() && made.pictures.isEmpty() && made.files.isEmpty())
        return qxCommands::endedEarly(QStringLiteral("no page was written"));
    if (!qxSetPreviews::reopen(session, file, {}))
        return WorkFailed;
    if (!qxStreams::write(page, cataloguePageOf(QFileInfo(file).fileName(), made)))
        return WorkFailed;
    qxOutput::line(page);
    if (done == names.size())
        return work.codeAfterScripts();
    const int left = names.size() - done;
    return qxCommands::endedEarly(
        QStringLiteral("%1 of %2 sets have no new picture").arg(left).arg(names.size()),
        QStringLiteral("a picture failed"));
}

} // namespace

const qxCommand qxCommands::catalogue = {
    "catalogue",      "FILE",      "Writes a page that shows all sets and variants.", 1, 1,
    catalogueOptions, runCatalogue};
