#include "qxPublishedSteps.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "Animation/qxAnimationPlayer.h"
#include "qxCameraService.h"
#include "qxKernelServiceFactory.h"
#include "qxText.h"

namespace {

QString keyOf(const qxVariantKind &kind, const qxVariant &variant, const QString &state)
{
    return kind.word + QChar(0) + variant.name + QChar(0) + state;
}

/// Where the camera ends; -1 when it stays.
int viewpointOf(const qxVariantSet &set)
{
    const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
    const auto find = [camera](const QString &name) {
        return camera->findViewpoint(qxText::toUtf8(name));
    };
    const int last = set.defaultViewpoint.isEmpty() ? -1 : find(set.defaultViewpoint);
    return last >= 0 || set.viewpoints.empty() ? last : find(set.viewpoints.front());
}

QJsonArray arrayOf(const std::vector<int> &numbers)
{
    QJsonArray array;
    for (const int number : numbers)
        array += number;
    return array;
}

} // namespace

qxPublishedSteps::qxPublishedSteps(qxSlots &slots)
    : m_slots(slots), m_effects(slots), m_clippings(slots)
{
}

void qxPublishedSteps::add(const qxVariantSet &set)
{
    Selection selection;
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().all()) {
        for (const qxVariantState &each : set.*kind->states) {
            const qxVariant *const variant = kind->find(each.variant);
            if (variant)
                selection.requests.push_back(
                    m_effects.request(*kind, variant->*kind->sceneName, each.state));
        }
    }
    m_clippings.add(set.analyzer);
    if (set.sequentialAnimation && !set.animations.empty())
        addTurn(set, selection);
    m_order.push_back(&set);
    m_selections.insert(&set, selection);
}

void qxPublishedSteps::addTurn(const qxVariantSet &set, Selection &selection)
{
    const auto count = qxSlots::Value(set.animations.size());
    const auto next = qxSlots::Value(set.animationIndex);
    selection.turn = m_slots.add(next < count ? next - 1 : -1);
    for (qxSlots::Value turn = -1; turn < count; ++turn)
        selection.turns[turn] = turn + 1 < count ? turn + 1 : 0;
    for (qxSlots::Value turn = 0; turn < count; ++turn)
        m_slots.note(selection.turn, turn);
}

void qxPublishedSteps::add(const qxVariantKind &kind, const qxVariant &variant,
                           const QString &state)
{
    m_options.insert(keyOf(kind, variant, state),
                     m_effects.request(kind, variant.*kind.sceneName, state));
}

void qxPublishedSteps::close()
{
    const qxShownTargets targets(m_slots);
    for (const qxVariantSet *set : m_order) {
        Selection &selection = m_selections[set];
        selection.targets = targets.of(*set);
        for (const osg::NodePtr &node : selection.targets)
            m_slots.note(m_slots.of(qxSceneObject(node), qxAspect::Visibility), 1);
    }
    m_effects.close();
    m_clippings.close();
    m_slots.finish();
}

QJsonObject qxPublishedSteps::of(const qxVariantSet &set) const
{
    const Selection &selection = *m_selections.constFind(&set);
    qxAssignments assignments(m_slots);
    for (const osg::NodePtr &node : selection.targets)
        assignments.set(m_slots.find(qxSceneObject(node), qxAspect::Visibility), 1);
    for (const Request request : selection.requests)
        m_effects.apply(request, assignments);
    m_clippings.apply(set.analyzer, assignments);
    QJsonObject json;
    if (assignments.isDefinite())
        json[QStringLiteral("now")] = assignments.condition();
    if (selection.turn >= 0)
        assignments.look(selection.turn, selection.turn, selection.turns);
    QJsonObject step = clipsAt(set, selection);
    step[QStringLiteral("assign")] = assignments.json();
    const int viewpoint = viewpointOf(set);
    if (viewpoint >= 0)
        step[QStringLiteral("viewpoint")] = viewpoint;
    json[QStringLiteral("step")] = step;
    return json;
}

QJsonObject qxPublishedSteps::clipsAt(const qxVariantSet &set, const Selection &selection) const
{
    std::vector<int> clips;
    for (const QString &name : set.animations) {
        const std::vector<int> found = clipsOf(name);
        if (selection.turn >= 0)
            clips.push_back(found.empty() ? -1 : found.front());
        else
            clips.insert(clips.end(), found.begin(), found.end());
    }
    if (clips.empty())
        return QJsonObject();
    if (selection.turn < 0)
        return {{QStringLiteral("clips"), arrayOf(clips)}};
    const int slot = m_slots.number(selection.turn);
    return {
        {QStringLiteral("turn"),
         QJsonObject{{QStringLiteral("slot"), slot}, {QStringLiteral("clips"), arrayOf(clips)}}}};
}

std::vector<int> qxPublishedSteps::clipsOf(const QString &name)
{
    std::vector<int> found;
    const std::vector<qxAnimationClip> &clips = qxAnimationPlayer::the().clips();
    for (std::size_t i = 0; i < clips.size() && !name.isEmpty(); ++i) {
        if (qxText::fromUtf8(clips[i].name) == name)
            found.push_back(int(i));
    }
    return found;
}

QJsonObject qxPublishedSteps::of(const qxVariantKind &kind, const qxVariant &variant,
                                 const QString &state) const
{
    qxAssignments assignments(m_slots);
    m_effects.apply(m_options.value(keyOf(kind, variant, state)), assignments);
    return {{QStringLiteral("assign"), assignments.json()}};
}
