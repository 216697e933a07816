#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "Session/qxInterrupt.h"
#include "Session/qxPictureOptions.h"
#include "Session/qxSession.h"
#include "Session/qxSetPreviews.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> previewsOptions()
{
    return QList<QCommandLineOption>{
               {QStringLiteral("stale"),
                QStringLiteral(
                    "Makes anew every preview that was made from something else than its set "
                    "shows now, and those that do not say what they were made from.")},
               {QStringLiteral("all"), QStringLiteral("Gives every set a new preview.")},
               qxCommands::scriptsOption(),
               qxCommands::noScriptsOption(),
               qxCommands::saveOption(),
               qxCommands::jsonOption(),
               qxCommands::traceOption()}
    + qxPictureOptions::all();
}

int runPreviews(const QCommandLineParser &parser)
{
    const bool all = parser.isSet(QStringLiteral("all"));
    const bool stale = parser.isSet(QStringLiteral("stale"));
    if ((all && stale) || !parser.isSet(QStringLiteral("save")))
        return qxCommands::fail(all && stale
                                    ? QStringLiteral("--stale and --all do not go together")
                                    : QStringLiteral("previews needs --save OUT"),
                                WrongUse);
    if (!qxPictureOptions::areKnown(parser))
        return WrongUse;
    if (!qxPictureOptions::apply(parser))
        return WorkFailed;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;

    qxSetPreviews::prepare(parser);
    const qxInterrupt interrupt;
    const QStringList names =
        all || stale ? qxSetPreviews::allNames() : qxSetPreviews::namesWithoutPreview();
    qxSetPreviews::Previews previews;
    const int done = qxSetPreviews::visit(names, [&previews, stale](qxVariantSet &set) {
        return (stale && !qxSetPreviews::isStale(set)) || qxSetPreviews::addPreview(set, previews);
    });
    // The previews show the scene as it was opened.
    if (!qxCommands::maySave(session, parser)
        || !qxSetPreviews::reopen(session, parser.positionalArguments().first(), previews)
        || qxCommands::saveIfAsked(session, parser) != Success)
        return WorkFailed;
    const int made = previews.size();
    const int kept = int(qxVariants::_variantSets.size()) - made;
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(QJsonObject{{QStringLiteral("made"), made}, {QStringLiteral("kept"), kept}});
    else
        qxOutput::line(QStringLiteral("%1 made, %2 kept").arg(made).arg(kept));
    if (done == names.size())
        return qxCommands::codeAfterScripts();
    return qxCommands::endedEarly(
        QStringLiteral("%1 of %2 sets are done and saved").arg(done).arg(names.size()),
        QStringLiteral("a preview failed"));
}

} // namespace

const qxCommand qxCommands::previews = {
    "previews",      "FILE",     "Makes the previews of the variant sets.", 1, 1,
    previewsOptions, runPreviews};
