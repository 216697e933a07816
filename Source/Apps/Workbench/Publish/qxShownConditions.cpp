#include "qxShownConditions.h"

#include "qxVariant.h"
#include "qxVariantKind.h"

#include "Scene/qxTransformStates.h"
#include "qxText.h"

#include <algorithm>
#include <set>

qxShownConditions::qxShownConditions(const qxSlots &slots, const qxVariantKind &kind,
                                     const qxVariant &variant)
    : m_slots(slots), m_variant(variant)
{
    const std::vector<qxSceneObject> objects = kind.rule.objects(variant.*kind.sceneName);
    for (const qxAspect aspect :
         {qxAspect::Visibility, qxAspect::Choice, qxAspect::Light, qxAspect::Pose}) {
        // Of several objects of one name a variant shows the first.
        const auto first = std::find_if(objects.begin(), objects.end(), [&](const auto &each) {
            return slots.find(each, aspect) >= 0;
        });
        if (first != objects.end())
            m_axes.push_back({*first, aspect, slots.find(*first, aspect)});
    }
    m_moment.resize(m_axes.size());
    askAll(0);
    for (const Axis &axis : m_axes)
        put(axis, slots.start(axis.slot));
}

void qxShownConditions::askAll(std::size_t axis)
{
    if (axis == m_axes.size())
        return ask();
    for (const qxSlots::Value value : m_slots.values(m_axes[axis].slot)) {
        put(m_axes[axis], value);
        m_moment[axis] = value;
        askAll(axis + 1);
    }
}

void qxShownConditions::ask()
{
    const qxShownState shown = m_variant.shown();
    for (const QString &state : std::set<QString>{shown.current, shown.visibleState()}) {
        if (shown.is(state))
            m_shown[state].push_back(m_moment);
    }
}

/// The host takes no pose that there is not, as of a node that was never put into one.
void qxShownConditions::put(const Axis &axis, qxSlots::Value value)
{
    if (qxStateRules::valueOf(axis.object, axis.aspect) == value)
        return;
    qxStateRules::setValue(axis.object, axis.aspect, value);
    if (axis.aspect != qxAspect::Pose || qxStateRules::valueOf(axis.object, axis.aspect) == value)
        return;
    const osg::TransformStatesPtr states = qxTransformStates::of(axis.object.node);
    const osg::CPEditor edit(states, osg::TransformStates::SelectedFieldMask);
    states->setSelected(int(value));
}

std::optional<QJsonArray> qxShownConditions::of(const QString &state) const
{
    const auto found = m_shown.constFind(state);
    if (found == m_shown.constEnd())
        return qxSlots::never();
    QJsonArray condition;
    std::size_t count = 1;
    for (std::size_t axis = 0; axis < m_axes.size(); ++axis) {
        std::set<qxSlots::Value> values;
        for (const Moment &moment : *found)
            values.insert(moment[axis]);
        count *= values.size();
        const qxSlots::Values holding(values.begin(), values.end());
        for (const QJsonValue &part : m_slots.condition(m_axes[axis].slot, holding))
            condition += part;
    }
    return count == found->size() ? std::optional<QJsonArray>(condition) : std::nullopt;
}
