#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxCommand.h"
#include "qxInterrupt.h"
#include "qxOutput.h"
#include "qxSession.h"
#include "qxSetPictures.h"

#include <QCommandLineParser>
#include <QMap>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("stale"),
             QStringLiteral("Replaces every preview that does not show its set as it is now.")},
            {QStringLiteral("all"), QStringLiteral("Gives every set a new preview.")},
            qxCommands::noScriptsOption(),
            qxSetPictures::qualityOption(),
            qxCommands::saveOption()};
}

typedef QMap<QString, QByteArray> Previews; ///< by the names of sets

/// Makes a preview of each of these sets until one is interrupted or fails; keeps those that are
/// new.
Previews make(const QStringList &names, int &done)
{
    Previews previews;
    done = qxSetPictures::visit(names, [&previews](qxVariantSet &set) {
        const QByteArray before = set.getPreview();
        qxVariants::renderVariantSetPreview(&set, false, true, true);
        if (set.getPreview() != before && !set.getPreview().isEmpty())
            previews[set.name] = set.getPreview();
        return !set.getPreview().isEmpty();
    });
    return previews;
}

/// Saves the file as it was read, with these previews: scripts of the sets may have changed what
/// has no place in it.
bool save(qxSession &session, const QCommandLineParser &parser, const Previews &previews)
{
    if (!session.open(parser.positionalArguments().first()))
        return false;
    for (auto preview = previews.begin(); preview != previews.end(); ++preview) {
        if (qxVariantSet *set = qxVariants::findVariantSet(preview.key()))
            set->setPreview(preview.value());
    }
    return session.save(parser.value(QStringLiteral("save")));
}

int run(const QCommandLineParser &parser)
{
    const bool all = parser.isSet(QStringLiteral("all"));
    const bool stale = parser.isSet(QStringLiteral("stale"));
    if ((all && stale) || !parser.isSet(QStringLiteral("save"))) {
        qxOutput::error(all && stale ? QStringLiteral("--stale and --all do not go together")
                                     : QStringLiteral("previews needs --save OUT"));
        return WrongUse;
    }
    if (!qxSetPictures::isQualityKnown(parser))
        return WrongUse;
    qxSession session;
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;

    qxSetPictures::prepare(parser);
    const qxInterrupt interrupt;
    const QStringList names =
        all || stale ? qxSetPictures::allNames() : qxSetPictures::namesWithoutPreview();
    int done = 0;
    const Previews previews = make(names, done);
    if (!save(session, parser, previews))
        return WorkFailed;
    const int made = all ? done : previews.size();
    const int kept = int(qxVariants::_variantSets.size()) - made;
    qxOutput::line(QStringLiteral("%1 made, %2 kept").arg(made).arg(kept));
    if (done == names.size())
        return Success;
    qxOutput::error(QStringLiteral("%1; %2 of %3 sets are done and saved")
                        .arg(qxInterrupt::isAsked() ? QStringLiteral("interrupted")
                                                    : QStringLiteral("a preview failed"))
                        .arg(done)
                        .arg(names.size()));
    return qxInterrupt::isAsked() ? Interrupted : WorkFailed;
}

} // namespace

const qxCommand qxCommands::previews = {
    "previews", "FILE", "Makes the previews of the variant sets.", 1, 1, options, run};
