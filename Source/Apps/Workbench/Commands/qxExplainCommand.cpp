#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Report/qxChangeReport.h"
#include "Report/qxOutput.h"
#include "Scene/qxClipping.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxController.h"
#include "qxExplanation.h"
#include "qxText.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

QList<QCommandLineOption> explainOptions()
{
    return {qxCommands::jsonOption(), qxCommands::traceOption()};
}

/// What of the three numbers reaches the plane: scripts carry six digits of each.
template <class Vector>
Vector throughScript(const Vector &exact)
{
    Vector rounded;
    for (int i = 0; i < 3; ++i)
        rounded[i] = float(QByteArray::number(double(exact[i]), 'g', 6).toDouble());
    return rounded;
}

/// Whether the host's clipping plane is as the record asks for.
bool isClippedAs(const qxAnalyzerVariant &wanted)
{
    const qxClipping &clipping = qxClipping::the();
    if (wanted.clipState == qxAnalyzerVariant::Disable)
        return !clipping.enabled;
    const bool isPlaced = clipping.position == throughScript(wanted.clipPlanePosition)
        && clipping.normal == throughScript(wanted.clipPlaneNormal)
        && clipping.invert == wanted.clipPlaneInvert;
    return isPlaced && (wanted.clipState == qxAnalyzerVariant::SetPlane || clipping.enabled);
}

/// Selects the set, without its script, and answers what cannot be seen in the scene.
qxSelectionOutcome selectQuietly(const qxVariantSet &set)
{
    qxSelectionOutcome outcome;
    const int listener = qxChangeReport::listenForClips(outcome.animations);
    const qxScriptRunner::Allowed before = qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxVariants::selectVariantSet(qxText::toUtf8(set.name).c_str(), false);
    qxScriptRunner::setAllowed(before);
    qxController::removeListener(listener);
    outcome.viewpoint = qxText::fromUtf8(qxMainView::the().viewpointName());
    outcome.isClipped = isClippedAs(set.analyzer);
    return outcome;
}

QString titleOf(qxCode code)
{
    return QString::fromLatin1(qxCheckCodes::row(code).title);
}

QJsonObject objectOf(const qxExplainedEntry &entry)
{
    QJsonObject left;
    for (auto each = entry.left.begin(); each != entry.left.end(); ++each)
        left[qxCheckCodes::id(each.key())] = each.value();
    const auto orNull = [](bool isMeant, const QJsonValue &value) {
        return isMeant ? value : QJsonValue();
    };
    const bool hasCode = entry.code.has_value();
    return {{QStringLiteral("kind"), entry.kind},
            {QStringLiteral("name"), entry.name},
            {QStringLiteral("state"), orNull(entry.isVariant, entry.state)},
            {QStringLiteral("variantFound"), orNull(entry.isVariant, entry.isVariantFound)},
            {QStringLiteral("stateKnown"), orNull(entry.isVariant, entry.isStateKnown)},
            {QStringLiteral("object"), orNull(!entry.object.isEmpty(), entry.object)},
            {QStringLiteral("found"), entry.found},
            {QStringLiteral("reached"), entry.reached},
            {QStringLiteral("left"), left},
            {QStringLiteral("from"), orNull(entry.reached > 0, entry.from)},
            {QStringLiteral("to"), orNull(entry.reached > 0, entry.to)},
            {QStringLiteral("code"), hasCode ? qxCheckCodes::id(*entry.code) : QJsonValue()},
            {QStringLiteral("reason"), hasCode ? titleOf(*entry.code) : QJsonValue()},
            {QStringLiteral("done"), entry.isDone}};
}

QString changeText(const qxExplainedEntry &entry)
{
    if (entry.reached == 0)
        return QString();
    const QString from = entry.from.isEmpty() ? QStringLiteral("(none)") : entry.from;
    const QString text = entry.from == entry.to ? QStringLiteral("stays %1").arg(entry.to)
                                                : QStringLiteral("%1 -> %2").arg(from, entry.to);
    return entry.found == 1
        ? text
        : text + QStringLiteral(" (%1 of %2)").arg(entry.reached).arg(entry.found);
}

QStringList rowOf(const qxExplainedEntry &entry)
{
    QString title = QLatin1String("  ") + entry.kind;
    if (!entry.name.isEmpty())
        title += QLatin1Char(' ') + entry.name;
    if (entry.isVariant)
        title += QStringLiteral(" = %1").arg(entry.state);
    QString outcome = QStringLiteral("done");
    if (entry.code)
        outcome = QStringLiteral("%1 %2").arg(qxCheckCodes::id(*entry.code), titleOf(*entry.code));
    for (auto each = entry.left.begin(); entry.reached > 0 && each != entry.left.end(); ++each)
        outcome += QStringLiteral("; %1 left: %2 %3")
                       .arg(each.value())
                       .arg(qxCheckCodes::id(each.key()), titleOf(each.key()));
    if (entry.isVariantFound && !entry.isStateKnown)
        outcome += QStringLiteral("; no option of the variant");
    return {title, changeText(entry), outcome};
}

void print(const QString &name, const qxExplanation &explanation, bool json)
{
    QJsonArray entries;
    QList<QStringList> rows;
    for (const qxExplainedEntry &entry : explanation.entries()) {
        entries += objectOf(entry);
        rows += rowOf(entry);
    }
    if (json)
        return qxOutput::json(
            QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("entries"), entries}});
    qxOutput::line(name);
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("  holds nothing")};
    qxOutput::table(rows);
}

int runExplain(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(arguments[0]))
        return WorkFailed;
    const qxVariantSet *const set = qxVariants::findVariantSet(arguments[1]);
    if (!set)
        return qxCommands::fail(qxUnknownName::set(arguments[1]));
    qxForecast forecast;
    qxExplanation explanation(*set, forecast);
    explanation.compare(selectQuietly(*set));
    print(arguments[1], explanation, parser.isSet(QStringLiteral("json")));
    const auto &entries = explanation.entries();
    const bool isAllShown =
        std::none_of(entries.begin(), entries.end(),
                     [](const qxExplainedEntry &entry) { return entry.code == qxCode::NotShown; });
    return isAllShown ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::explain = {
    "explain",      "FILE SET", "Tells what selecting a set does, and what it leaves out.", 2, 2,
    explainOptions, runExplain};
