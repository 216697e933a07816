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
                QStringLiteral(
                    "Makes anew every preview that was made from something else than its set "
                    "shows now, and those that do not say what they were made from.")},
               {QStringLiteral("all"), QStringLiteral("Gives every set a new preview.")},
               qxCommands::scriptsOption(),
               qxCommands::noScriptsOption(),
               qxCommands::saveOption(),
               qxCommands::jsonOption(),
               qxCommands::traceOption()}
    + qxPictureOptions::all() + qxShardOptions::all();
}

/// New previews, by the names of sets: those made here, and those that shards have left in files.
struct NewPreviews {
    qxSetPreviews::Previews previews;
    qxSession::PreviewFiles files;
};

/// Previews that lie in files are not kept in memory.
qxSetPreviews::Take takeNew(NewPreviews &made, const qxSharedPictures &work)
{
    return [&made, parts = work.files()](const QString &name, const QByteArray &png) {
        if (parts.contains(name))
            made.files[name] = parts[name];
        else
            made.previews[name] = png;
        return true;
    };
}

/// The previews show the scene as it was opened, and so it is saved.
bool saveNew(qxSession &session, const QCommandLineParser &parser, const NewPreviews &made)
{
    return qxCommands::maySave(session, parser)
        && qxSetPreviews::reopen(session, parser.positionalArguments().first(), made.previews)
        && session.save(parser.value(QStringLiteral("save")), made.files);
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
    qxSharedPictures::Product product = qxSharedPictures::previews();
    if (stale)
        product.isWanted = qxSetPreviews::isStale;
    code = work.begin(product);
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
    NewPreviews previews;
    const int done = work.visit(names, takeNew(previews, work));
    if (done < 0 || !saveNew(session, parser, previews))
        return WorkFailed;
    const int made = previews.previews.size() + previews.files.size();
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
