#include "qxExplanation.h"

#include "qxVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"

#include <OpenSG/OSGSwitch.h>

namespace {

const char viewpointKind[] = "viewpoint";
const char defaultViewpointKind[] = "default viewpoint";
const char animationKind[] = "animation";
const char clippingKind[] = "clipping";

/// Clones share one core, and a state is applied to it once.
bool isAppliedOnce(const qxSceneObject &object, qxAspect aspect)
{
    return aspect == qxAspect::Choice && object.kind != &qxVariantKinds::material;
}

/// Whether a node variant that recurses goes on to what is below and above the node.
bool isRecursed(const qxSceneObject &object, qxAspect aspect, const QString &state, int after)
{
    if (!qxVariants::_recurse || object.kind != &qxVariantKinds::node)
        return false;
    if (aspect == qxAspect::Visibility)
        return after != 0;
    const bool isSwitch = osg::SwitchPtr::dcast(object.node->getCore()) != osg::NullFC;
    return isSwitch && state != variantNone;
}

qxSceneObject nodeObject(const osg::NodePtr &node)
{
    return {&qxVariantKinds::node, node, osg::NullFC};
}

std::optional<qxCode> unless(bool isGood, qxCode code)
{
    return isGood ? std::nullopt : std::optional<qxCode>(code);
}

} // namespace

qxExplanation::qxExplanation(const qxVariantSet &set)
{
    addTargets(set);
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

void qxExplanation::addTargets(const qxVariantSet &set)
{
    bool isMissing = false;
    for (const QString &name : set.targetNodeNames) {
        const auto nodes = qxStateRules::objectsOf(m_scene, &qxVariantKinds::node, name);
        isMissing = isMissing || nodes.empty();
        addPlain("target", name,
                 !set.inclNodes ? qxCode::SkippedTargetsOff
                                : unless(!isMissing, qxCode::SkippedTarget));
        m_entries.back().object = name;
        m_entries.back().found = int(nodes.size());
        if (m_entries.back().code)
            continue;
        m_entries.back().reached = 1;
        m_entries.back().from = qxStateRules::nameOf(nodes.front(), qxAspect::Visibility,
                                                     valueOf(nodes.front(), qxAspect::Visibility));
        m_entries.back().to = qxStateRules::nameOf(nodes.front(), qxAspect::Visibility, 1);
        showSubTree(nodes.front().node);
        m_changes.push_back({m_entries.size() - 1, nodes.front(), qxAspect::Visibility, 1});
    }
}

void qxExplanation::show(const osg::NodePtr &node)
{
    m_values.insert(qxStateRules::keyOf(nodeObject(node), qxAspect::Visibility), 1);
}

void qxExplanation::showSubTree(const osg::NodePtr &node)
{
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(node))
        show(each);
    for (osg::NodePtr above = node->getParent(); above != osg::NullFC; above = above->getParent())
        show(above);
}

void qxExplanation::recurse(const osg::NodePtr &node)
{
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(node))
        show(each);
    osg::NodePtr above = node->getParent();
    while (above != osg::NullFC && !valueOf(nodeObject(above), qxAspect::Visibility)) {
        show(above);
        above = above->getParent();
    }
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
            foresee(entry, kind);
        else
            entry.code = qxCode::SkippedNoVariant;
        m_entries.push_back(entry);
    }
}

void qxExplanation::foresee(qxExplainedEntry &entry, const qxVariantKind *kind)
{
    const std::vector<qxSceneObject> objects = qxStateRules::objectsOf(m_scene, kind, entry.object);
    entry.found = int(objects.size());
    m_done.clear();
    std::optional<qxCode> reason;
    for (const qxSceneObject &object : objects) {
        const qxEffect effect = qxStateRules::effectOf(object, entry.state);
        if (effect.operation != qxEffect::Nothing) {
            apply(entry, object, effect);
            continue;
        }
        ++entry.left[effect.reason];
        reason = reason ? reason : effect.reason;
        // A transform switch takes any number, and any other text for its first state.
        if (effect.reason == qxCode::SkippedNoTransformNumber)
            m_values.insert(qxStateRules::keyOf(object, qxAspect::Choice), 0);
        else if (effect.reason == qxCode::SkippedTransformOutOfRange)
            m_values.remove(qxStateRules::keyOf(object, qxAspect::Choice));
    }
    if (entry.reached == 0)
        entry.code = reason.value_or(qxCode::SkippedNoObject);
}

void qxExplanation::apply(qxExplainedEntry &entry, const qxSceneObject &object,
                          const qxEffect &effect)
{
    const qxAspectKey key = qxStateRules::keyOf(object, effect.aspect);
    const int before = valueOf(object, effect.aspect);
    const bool isDone = isAppliedOnce(object, effect.aspect) && m_done.contains(key);
    const int after = isDone ? before : qxStateRules::after(object, effect, before);
    if (entry.reached++ == 0) {
        entry.from = qxStateRules::nameOf(object, effect.aspect, before);
        entry.to = qxStateRules::nameOf(object, effect.aspect, after);
    }
    m_done.insert(key);
    m_values.insert(key, after);
    if (effect.resetsChoice)
        m_values.insert(qxStateRules::keyOf(object, qxAspect::Choice), 0);
    if (isRecursed(object, effect.aspect, entry.state, after))
        recurse(object.node);
    m_changes.push_back({m_entries.size(), object, effect.aspect, after});
}

int qxExplanation::valueOf(const qxSceneObject &object, qxAspect aspect) const
{
    const auto changed = m_values.constFind(qxStateRules::keyOf(object, aspect));
    return changed != m_values.constEnd() ? *changed : qxStateRules::current(object, aspect);
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
        const int now = qxStateRules::current(change.object, change.aspect);
        if (now == change.value || entry.code == qxCode::NotShown)
            continue;
        const qxAspectKey key = qxStateRules::keyOf(change.object, change.aspect);
        const bool isForeseen = m_values.value(key, now) == now;
        entry.isDone = false;
        entry.code = isForeseen ? qxCode::ChangedAgain : qxCode::NotShown;
    }
}
