#include "qxCataloguePage.h"
#include "qxCommand.h"
#include "qxInterrupt.h"
#include "qxOutput.h"
#include "qxSession.h"
#include "qxSetPictures.h"
#include "qxStreams.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("out"), QStringLiteral("The folder for the page, index.html."),
             QStringLiteral("DIR")},
            qxSetPictures::qualityOption(),
            qxCommands::noScriptsOption(),
            qxCommands::traceOption()};
}

int run(const QCommandLineParser &parser)
{
    const QDir folder(parser.value(QStringLiteral("out")));
    if (!parser.isSet(QStringLiteral("out"))) {
        qxOutput::error(QStringLiteral("catalogue needs --out DIR"));
        return WrongUse;
    }
    if (!qxSetPictures::isQualityKnown(parser))
        return WrongUse;
    const QString page = folder.filePath(QStringLiteral("index.html"));
    const int code = qxValueKinds::checkFile(page);
    if (code != Success)
        return code;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    const QString file = parser.positionalArguments().first();
    if (!session.open(file))
        return WorkFailed;

    qxSetPictures::prepare(parser);
    const qxInterrupt interrupt;
    const QStringList names = qxSetPictures::namesWithoutPreview();
    int done = 0;
    const qxSetPictures::Previews previews = qxSetPictures::makePreviews(names, done);
    if (!qxSetPictures::reopen(session, file, previews))
        return WorkFailed;
    if (!qxStreams::write(page, qxCataloguePage::html(QFileInfo(file).fileName())))
        return WorkFailed;
    qxOutput::line(page);
    if (done == names.size())
        return qxCommands::codeAfterScripts();
    qxOutput::error(QStringLiteral("%1; %2 sets are shown without a preview")
                        .arg(qxInterrupt::isAsked() ? QStringLiteral("interrupted")
                                                    : QStringLiteral("a preview failed"))
                        .arg(names.size() - done));
    return qxInterrupt::isAsked() ? Interrupted : WorkFailed;
}

} // namespace

const qxCommand qxCommands::catalogue = {
    "catalogue", "FILE", "Writes a page that shows all sets and variants.", 1, 1, options, run};
