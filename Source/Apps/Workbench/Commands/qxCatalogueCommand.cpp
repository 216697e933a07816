#include "qxVariantSet.h"

#include "Report/qxCataloguePage.h"
#include "Report/qxOutput.h"
#include "Session/qxInterrupt.h"
#include "Session/qxPictureOptions.h"
#include "Session/qxSession.h"
#include "Session/qxSetPreviews.h"
#include "qxCommand.h"
#include "qxStreams.h"
#include "qxValueKind.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QImage>

namespace {

/// On a card of the page; fine screens and phones show the pictures twice as large.
const QSize cardSize(330, 220);
/// Of a pixel. Few, because the pixels are many, and smaller than those of most screens.
constexpr int Samples = 4;
constexpr int JpegQuality = 85;

QList<QCommandLineOption> catalogueOptions()
{
    return QList<QCommandLineOption>{{QStringLiteral("out"),
                                      QStringLiteral("The folder for the page, index.html."),
                                      QStringLiteral("DIR")},
                                     qxCommands::scriptsOption(),
                                     qxCommands::noScriptsOption(),
                                     qxCommands::traceOption()}
    + qxPictureOptions::all();
}

QByteArray jpegOf(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", JpegQuality);
    return buffer.data();
}

/// Pictures of these sets; counts in `done` like qxSetPreviews::visit.
qxCataloguePage::Pictures makePictures(const QStringList &names, int &done)
{
    qxCataloguePage::Pictures pictures;
    done = qxSetPreviews::visit(names, [&pictures](qxVariantSet &set) {
        const QSize size = cardSize * 2;
        const QImage picture = QImage::fromData(qxSetPreviews::render(size.width(), size.height()));
        if (picture.isNull())
            return false;
        const QImage small =
            picture.scaled(cardSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        pictures[set.name] = {jpegOf(picture), jpegOf(small)};
        return true;
    });
    return pictures;
}

int runCatalogue(const QCommandLineParser &parser)
{
    const QDir folder(parser.value(QStringLiteral("out")));
    if (!parser.isSet(QStringLiteral("out")))
        return qxCommands::fail(QStringLiteral("catalogue needs --out DIR"), WrongUse);
    if (!qxPictureOptions::areKnown(parser))
        return WrongUse;
    const QString page = folder.filePath(QStringLiteral("index.html"));
    const int code = qxValueKinds::checkFile(page);
    if (code != Success)
        return code;
    if (!qxPictureOptions::apply(parser))
        return WorkFailed;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    const QString file = parser.positionalArguments().first();
    if (!session.open(file))
        return WorkFailed;

    qxSetPreviews::prepare(parser, Samples);
    const qxInterrupt interrupt;
    const QStringList names = qxSetPreviews::allNames();
    int done = 0;
    const qxCataloguePage::Pictures pictures = makePictures(names, done);
    if (qxInterrupt::isAsked() && pictures.isEmpty())
        return qxCommands::endedEarly(QStringLiteral("no page was written"));
    if (!qxSetPreviews::reopen(session, file, {}))
        return WorkFailed;
    if (!qxStreams::write(page, qxCataloguePage::html(QFileInfo(file).fileName(), pictures)))
        return WorkFailed;
    qxOutput::line(page);
    if (done == names.size())
        return qxCommands::codeAfterScripts();
    const int left = names.size() - done;
    return qxCommands::endedEarly(
        QStringLiteral("%1 of %2 sets have no new picture").arg(left).arg(names.size()),
        QStringLiteral("a picture failed"));
}

} // namespace

const qxCommand qxCommands::catalogue = {
    "catalogue",      "FILE",      "Writes a page that shows all sets and variants.", 1, 1,
    catalogueOptions, runCatalogue};
