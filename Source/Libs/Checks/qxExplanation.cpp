#include "qxExplanation.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxFindCache.h"
#include "qxNodeUtils.h"

#include <algorithm>

namespace {

const char viewpointKind[] = "viewpoint";
const char defaultViewpointKind[] = "default viewpoint";
const char animationKind[] = "animation";
const char clippingKind[] = "clipping";

struct ReasonRow {
    qxReason reason;
    qxCode code;
};

const ReasonRow reasonRows[] = {
    {qxReason::FirstTransform, qxCode::SkippedNoTransformNumber},
    {qxReason::BeyondTransforms, qxCode::SkippedTransformOutOfRange},
    {qxReason::NoSwitch, qxCode::SkippedNoSwitch},
    {qxReason::NoSuchChild, qxCode::SkippedNoSuchChild},
    {qxReason::NoSwitchMaterial, qxCode::SkippedNoSwitchMaterial},
    {qxReason::EmptySwitchMaterial, qxCode::SkippedEmptySwitchMaterial},
    {qxReason::NoSuchMaterial, qxCode::SkippedNoSuchMaterial},
    {qxReason::NoLight, qxCode::SkippedNoLight},
    {qxReason::NoLightState, qxCode::SkippedNoLightState},
    {qxReason::NoTransforms, qxCode::SkippedNoTransforms},
    {qxReason::NoSuchTransform, qxCode::SkippedNoSuchTransform},
};

/// Why an object does not take a state. Of overlays it is all one.
qxCode codeOf(const qxVariantKind &kind, qxReason reason)
{
    if (&kind == &qxVariantKinds::overlay)
        return qxCode::SkippedNoOverlayState;
    const auto row =
        std::find_if(std::begin(reasonRows), std::end(reasonRows),
                     [reason](const ReasonRow &each) { return each.reason == reason; });
    return row->code;
}

std::optional<qxCode> unless(bool isGood, qxCode code)
{
    return isGood ? std::nullopt : std::optional<qxCode>(code);
}

} // namespace

qxExplanation::qxExplanation(const qxVariantSet &set, qxForecast &forecast, Targets targets)
    : m_forecast(forecast)
{
    const qxFindCache cache(true);
    addTargets(set, targets);
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().first)
        addVariants(set, kind);
    addViewpoints(set);
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().rest)
        addVariants(set, kind);
    addRest(set);
}

void qxExplanation::addPlain(const char *kind, const QString &name, std::optional<qxCode> code)
{
    qxExplainedEntry entry;
    entry.kind = QString::fromLatin1(kind);
    entry.name = name;
    entry.code = code;
    m_entries.push_back(entry);
}

void qxExplanation::addTargets(const qxVariantSet &set, Targets targets)
{
    bool isMissing = false;
    for (const QString &name : set.targetNodeNames) {
        const std::vector<qxSceneObject> nodes = qxStateRules::node.objects(name);
        isMissing = isMissing || nodes.empty();
        addPlain("target", name,
                 !set.inclNodes ? qxCode::SkippedTargetsOff
                                : unless(!isMissing, qxCode::SkippedTarget));
        m_entries.back().object = name;
        m_entries.back().found = int(nodes.size());
        if (m_entries.back().code)
            continue;
        const qxSceneObject &node = nodes.front();
        const osg::Int64 before = m_forecast.value(node, qxAspect::Visibility);
        m_entries.back().reached = 1;
        m_entries.back().changed = before == 0;
        m_entries.back().from = qxStateRules::stateFor(node, qxAspect::Visibility, before);
        m_entries.back().to = qxStateRules::stateFor(node, qxAspect::Visibility, 1);
        if (targets == ForeseeTargets)
            showTarget(node.node);
        m_changes.push_back(
            {m_entries.size() - 1, {node, qxAspect::Visibility, 1, qxReason::Named}});
    }
}

void qxExplanation::showTarget(const osg::NodePtr &node)
{
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(node))
        m_forecast.show(each);
    for (osg::NodePtr above = node->getParent(); above != osg::NullFC; above = above->getParent())
        m_forecast.show(above);
}

void qxExplanation::addVariants(const qxVariantSet &set, const qxVariantKind *kind)
{
    for (const qxVariantState &each : set.*kind->states) {
        qxVariant *const found = kind->find(each.variant);
        qxExplainedEntry entry;
        entry.kind = kind->word;
        entry.name = each.variant;
        entry.state = each.state;
        entry.isVariant = true;
        entry.isVariantFound = found != nullptr;
        entry.isStateKnown = found && found->find(each.state);
        entry.object = found ? found->*kind->sceneName : QString();
        if (entry.isVariantFound)
            foresee(entry, *kind);
        else
            entry.code = qxCode::SkippedNoVariant;
        m_entries.push_back(entry);
    }
}

void qxExplanation::foresee(qxExplainedEntry &entry, const qxVariantKind &kind)
{
    qxStateRequest request(entry.state);
    request.recurses = kind.rule.recurses && qxVariants::_recurse;
    for (const qxSceneObject &object : kind.rule.objects(entry.object)) {
        const qxForeseen foreseen = m_forecast.foresee(kind.rule, object, request);
        const qxEffect &effect = foreseen.effect;
        ++entry.found;
        if (!effect.isTaken()) {
            const qxCode code = codeOf(kind, effect.reason);
            ++entry.left[code];
            entry.code = entry.code.value_or(code);
            continue;
        }
        entry.changed += effect.value != foreseen.before;
        if (entry.reached++ == 0) {
            entry.from = qxStateRules::stateFor(object, effect.aspect, foreseen.before);
            entry.to = qxStateRules::stateFor(object, effect.aspect, effect.value);
        }
        m_changes.push_back({m_entries.size(), effect});
    }
    if (entry.reached > 0)
        entry.code.reset();
    else if (entry.found == 0)
        entry.code = qxCode::SkippedNoObject;
}

void qxExplanation::addViewpoints(const qxVariantSet &set)
{
    bool isFirst = true;
    for (const QString &name : set.viewpoints) {
        const bool exists = m_scene.hasViewpoint(name);
        addPlain(viewpointKind, name,
                 isFirst ? unless(exists, qxCode::SkippedViewpoint)
                         : qxCode::SkippedFurtherViewpoint);
        m_entries.back().found = exists;
        isFirst = false;
    }
}

void qxExplanation::addRest(const qxVariantSet &set)
{
    if (!set.script.isEmpty())
        addPlain("script", QString(), qxCode::SkippedScript);
    const int clipState = set.analyzer.clipState;
    if (clipState != qxAnalyzerVariant::NoChange)
        addPlain(clippingKind, QString::number(clipState),
                 unless(clipState > 0 && clipState <= qxAnalyzerVariant::SetPlane,
                        qxCode::SkippedClipping));
    addAnimations(set);
    if (!set.defaultViewpoint.isEmpty()) {
        const bool exists = m_scene.hasViewpoint(set.defaultViewpoint);
        addPlain(defaultViewpointKind, set.defaultViewpoint,
                 unless(exists, qxCode::SkippedDefaultViewpoint));
        m_entries.back().found = exists;
    }
    for (const QString &name : set.geometries)
        addPlain("geometry", name, qxCode::SkippedGeometry);
    for (const QString &path : set.materialSnapshots.keys())
        addPlain("snapshot", path, qxCode::SkippedSnapshot);
}

void qxExplanation::addAnimations(const qxVariantSet &set)
{
    const std::size_t turn = set.animationIndex < set.animations.size() ? set.animationIndex : 0;
    for (std::size_t i = 0; i < set.animations.size(); ++i) {
        const QString &name = set.animations[i];
        const bool exists = m_scene.hasClip(name);
        const bool waits = set.sequentialAnimation && i != turn;
        addPlain(animationKind, name,
                 waits ? qxCode::SkippedForLaterTurn : unless(exists, qxCode::SkippedAnimation));
        m_entries.back().found = exists;
    }
}

void qxExplanation::compare(const qxSelectionOutcome &outcome)
{
    for (qxExplainedEntry &entry : m_entries)
        entry.isDone = !entry.code;
    compareChanges();
    for (qxExplainedEntry &entry : m_entries) {
        if (entry.isVariant || entry.code || isShown(entry, outcome))
            continue;
        entry.isDone = false;
        const bool isLeft =
            entry.kind == QLatin1String(viewpointKind) && m_scene.hasViewpoint(outcome.viewpoint);
        entry.code = isLeft ? qxCode::ChangedAgain : qxCode::NotShown;
    }
}

bool qxExplanation::isShown(const qxExplainedEntry &entry, const qxSelectionOutcome &outcome) const
{
    if (entry.kind == QLatin1String(viewpointKind)
        || entry.kind == QLatin1String(defaultViewpointKind))
        return outcome.viewpoint == entry.name;
    if (entry.kind == QLatin1String(animationKind))
        return outcome.animations.contains(entry.name);
    return entry.kind != QLatin1String(clippingKind) || outcome.isClipped;
}

void qxExplanation::compareChanges()
{
    for (const Change &change : m_changes) {
        qxExplainedEntry &entry = m_entries[change.entry];
        const qxEffect &effect = change.effect;
        const osg::Int64 now = qxStateRules::valueOf(effect.object, effect.aspect);
        if (now == effect.value || entry.code == qxCode::NotShown)
            continue;
        const bool isForeseen = m_forecast.value(effect.object, effect.aspect) == now;
        entry.isDone = false;
        entry.code = isForeseen ? qxCode::ChangedAgain : qxCode::NotShown;
    }
}
