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
#include <QFileInfo>

namespace {

QList<QCommandLineOption> catalogueOptions()
{
    return QList<QCommandLineOption>{{QStringLiteral("out"),
                                      QStringLiteral("The folder for the page, index.html."),
                                      QStringLiteral("DIR")},
                                     qxCommands::scriptsOption(),
                                     qxCommands::noScriptsOption(),
                                     qxShardOptions::json(), qxCommands::traceOption()}
    + qxPictureOptions::all() + qxShardOptions::all();
}

qxSharedPictures::Product product()
{
    return {qxSetPictures::pageSize, [] { return qxSetPreviews::fingerprint(qxSetPictures::pageSize); },
            qxSetPictures::ofSize(qxSetPictures::pageSize)};
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
    qxCataloguePage::Pictures pictures;
    const int done = work.visit(names, qxSetPictures::onPage(pictures));
    if (done < 0)
        return WorkFailed;
    if (qxInterrupt::isAsked() && pictures.isEmpty())
        return qxCommands::endedEarly(QStringLiteral("no page was written"));
    if (!qxSetPreviews::reopen(session, file, {}))
        return WorkFailed;
    if (!qxStreams::write(page, qxCataloguePage::html(QFileInfo(file).fileName(), pictures)))
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
