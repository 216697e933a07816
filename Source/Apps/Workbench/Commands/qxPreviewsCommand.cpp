#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "Session/qxInterrupt.h"
#include "Session/qxPictureOptions.h"
#include "Session/qxSession.h"
#include "Session/qxSetPreviews.h"
#include "qxCommand.h"
#include "qxSharedPictures.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> previewsOptions()
{
    return QList<QCommandLineOption>{
               {QStringLiteral("stale"),
                QStringLiteral("Replaces every preview that does not show its set as it is now.")},
               {QStringLiteral("all"), QStringLiteral("Gives every set a new preview.")},
               qxCommands::scriptsOption(),
               qxCommands::noScriptsOption(),
               qxCommands::saveOption(),
               qxCommands::jsonOption(),
               qxCommands::traceOption()}
    + qxPictureOptions::all() + qxShardOptions::all();
}

int runPreviews(const QCommandLineParser &parser)
{
    const bool all = parser.isSet(QStringLiteral("all"));
    const bool stale = parser.isSet(QStringLiteral("stale"));
    if (all && stale)
        return qxCommands::fail(QStringLiteral("--stale and --all do not go together"), WrongUse);
    qxSharedPictures work(qxCommands::previews, parser);
    int code = work.read({QStringLiteral("save"), QStringLiteral("force")});
    if (code != Success)
        return code;
    if (!work.makesParts() && !parser.isSet(QStringLiteral("save")))
        return qxCommands::fail(QStringLiteral("previews needs --save OUT"), WrongUse);
    if (!qxPictureOptions::areKnown(parser))
        return WrongUse;
    code = work.begin(qxSharedPictures::previews());
    if (code != Success)
        return code;
    if (!qxPictureOptions::apply(parser))
        return WorkFailed;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;

    qxSetPreviews::prepare(parser);
    const qxInterrupt interrupt;
    const QStringList names =
        all || stale ? qxSetPreviews::allNames() : qxSetPreviews::namesWithoutPreview();
    if (work.makesParts())
        return work.makeParts(names);
    qxSetPreviews::Previews previews;
    const auto take = [&previews](const QString &name, const QByteArray &png) {
        const qxVariantSet *const set = qxVariants::findVariantSet(name);
        if (!set || png != set->getPreview())
            previews[name] = png;
        return true;
    };
    const int done = work.visit(names, take);
    if (done < 0)
        return WorkFailed;
    // The previews show the scene as it was opened.
    if (!qxCommands::maySave(session, parser)
        || !qxSetPreviews::reopen(session, parser.positionalArguments().first(), previews)
        || qxCommands::saveIfAsked(session, parser) != Success)
        return WorkFailed;
    const int made = all ? done : previews.size();
    const int kept = int(qxVariants::_variantSets.size()) - made;
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(QJsonObject{{QStringLiteral("made"), made}, {QStringLiteral("kept"), kept}});
    else
        qxOutput::line(QStringLiteral("%1 made, %2 kept").arg(made).arg(kept));
    if (done == names.size())
        return work.codeAfterScripts();
    return qxCommands::endedEarly(
        QStringLiteral("%1 of %2 sets are done and saved").arg(done).arg(names.size()),
        QStringLiteral("a preview failed"));
}

} // namespace

const qxCommand qxCommands::previews = {
    "previews",      "FILE",     "Makes the previews of the variant sets.", 1, 1,
    previewsOptions, runPreviews};
