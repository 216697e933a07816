#include "qxCataloguePage.h"
#include "qxCommand.h"
#include "qxInterrupt.h"
#include "qxOutput.h"
#include "qxSession.h"
#include "qxSetPictures.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("out"),
             QStringLiteral("The folder for the page, index.html. It is made when there is none."),
             QStringLiteral("DIR")},
            qxSetPictures::qualityOption(),
            qxCommands::noScriptsOption()};
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
    qxSession session;
    const QString file = parser.positionalArguments().first();
    if (!session.open(file))
        return WorkFailed;
    if (!folder.mkpath(QStringLiteral(".")))
        return qxCommands::fail(QStringLiteral("%1: the folder cannot be made").arg(folder.path()));

    qxSetPictures::prepare(parser);
    const qxInterrupt interrupt;
    const QStringList names = qxSetPictures::namesWithoutPreview();
    int done = 0;
    const qxSetPictures::Previews previews = qxSetPictures::makePreviews(names, done);
    if (!qxSetPictures::reopen(session, file, previews))
        return WorkFailed;
    const QString page = folder.filePath(QStringLiteral("index.html"));
    if (!qxSetPictures::write(page, qxCataloguePage::html(QFileInfo(file).fileName())))
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
