#include "qxPublishedLosses.h"

#include "qxVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxExplanation.h"
#include "qxLossReport.h"
#include "qxPublishedSteps.h"

namespace {

/// What a set only keeps: selecting it does nothing with it.
bool isKept(const qxExplainedEntry &entry)
{
    return entry.code == qxCode::SkippedGeometry || entry.code == qxCode::SkippedSnapshot
        || entry.code == qxCode::SkippedTargetsOff;
}

void judge(const qxVariantSet &set, const qxExplainedEntry &entry, qxLoss &loss)
{
    const auto make = [&loss](qxLoss::Outcome outcome, const QString &text) {
        loss.outcome = outcome;
        loss.text = text;
    };
    if (entry.code == qxCode::SkippedScript)
        return make(qxLoss::Dropped, QStringLiteral("scripts do not run in a browser"));
    const bool isTurn = entry.kind == QLatin1String("animation") && set.sequentialAnimation;
    const int clips = isTurn ? int(qxPublishedSteps::clipsOf(entry.name).size()) : 0;
    if (clips > 1)
        return make(
            qxLoss::Approximated,
            QStringLiteral("of %1 animations of that name the first one starts").arg(clips));
    if (entry.code && !(isTurn && clips > 0))
        return make(qxLoss::Dropped, QString::fromLatin1(qxCheckCodes::row(*entry.code).title));
    if (qxVariants::_recurse && entry.kind == QLatin1String("node"))
        make(qxLoss::Approximated,
             QStringLiteral("shows the nodes themselves, but not what is below and above them"));
}

} // namespace

void qxPublishedLosses::add(const qxVariantSet &set, qxLossReport &losses)
{
    qxForecast forecast;
    const qxExplanation explanation(set, forecast, qxExplanation::PassTargets);
    for (const qxExplainedEntry &entry : explanation.entries()) {
        if (isKept(entry))
            continue;
        qxLoss loss;
        loss.set = set.name;
        loss.kind = entry.kind;
        loss.name = entry.name;
        loss.state = entry.state;
        judge(set, entry, loss);
        losses.add(loss);
    }
}
