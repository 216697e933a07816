#include "qxSelectionEffects.h"

#include "qxVariantKind.h"

qxSelectionEffects::Request qxSelectionEffects::request(const qxVariantKind &kind,
                                                        const QString &object, const QString &state)
{
    const QChar end(0);
    const QString key = kind.word + end + object + end + state;
    const auto known = m_requests.constFind(key);
    if (known != m_requests.constEnd())
        return *known;
    m_changes.push_back(changesOf(kind.rule, object, state));
    return *m_requests.insert(key, Request(m_changes.size()) - 1);
}

/// Of clones only the first one takes a choice; the request knows which that is.
qxSelectionEffects::Changes qxSelectionEffects::changesOf(const qxStateRule &rule,
                                                          const QString &name, const QString &state)
{
    Changes changes;
    qxStateRequest request(state);
    for (const qxSceneObject &object : rule.objects(name)) {
        const qxStateSurvey::Effects effects = m_rules.ask(rule, object, request);
        for (const qxEffect &effect : effects) {
            const bool isStep = m_rules.dependsOn(effect.aspect);
            if (effect.isDone || (!isStep && !effect.isChange()))
                continue;
            const int slot = m_slots.of(effect.object, effect.aspect);
            changes.push_back({effect.object, effect.aspect, slot, effect.value,
                               isStep ? stepOf(rule, state, effect, slot) : -1});
        }
    }
    return changes;
}

int qxSelectionEffects::stepOf(const qxStateRule &rule, const QString &state,
                               const qxEffect &effect, int slot)
{
    m_steps.push_back({&rule, state, effect.object, effect.aspect, slot});
    return int(m_steps.size()) - 1;
}

void qxSelectionEffects::close()
{
    std::map<int, std::vector<int>> bySlot;
    for (const Changes &changes : m_changes) {
        for (const Change &change : changes) {
            if (change.step < 0)
                note(change.object, change.aspect, change.slot, change.value);
            else
                bySlot[change.slot].push_back(change.step);
        }
    }
    for (const auto &[slot, steps] : bySlot)
        closeSteps(steps);
}

/// Steps of one slot lead to values from which all of them may go on.
void qxSelectionEffects::closeSteps(const std::vector<int> &steps)
{
    const int slot = m_steps[std::size_t(steps.front())].slot;
    for (std::size_t i = 0; i < m_slots.values(slot).size(); ++i) {
        for (const int step : steps)
            closeStep(m_steps[std::size_t(step)], m_slots.values(slot)[i]);
    }
}

void qxSelectionEffects::closeStep(Step &step, qxSlots::Value before)
{
    const auto after = m_rules.after(*step.rule, step.object, step.state, step.aspect, before);
    if (!after)
        return;
    const qxPlaces::Outcome &outcome = note(step.object, step.aspect, step.slot, *after);
    if (!outcome.isTaken)
        return;
    step.values[before] = *after;
    if (!outcome.place)
        return;
    step.placeSlot = m_places.slotOf(step.object.node);
    step.places[before] = *outcome.place;
}

const qxPlaces::Outcome &qxSelectionEffects::note(const qxSceneObject &object, qxAspect aspect,
                                                  int slot, qxSlots::Value value)
{
    const qxPlaces::Outcome &outcome = m_places.outcome(object, aspect, value);
    if (outcome.isTaken)
        m_slots.note(slot, value);
    if (outcome.place)
        m_slots.note(m_places.slotOf(object.node), *outcome.place);
    return outcome;
}

// A step decides by the value that was: what follows from it comes before that changes.
void qxSelectionEffects::apply(Request request, qxAssignments &assignments) const
{
    for (const Change &change : m_changes[std::size_t(request)]) {
        if (change.step >= 0) {
            const Step &step = m_steps[std::size_t(change.step)];
            if (step.placeSlot >= 0)
                assignments.look(step.placeSlot, step.slot, step.places);
            assignments.look(step.slot, step.slot, step.values);
            continue;
        }
        const qxPlaces::Outcome &outcome =
            m_places.known(change.object, change.aspect, change.value);
        if (outcome.place)
            assignments.set(m_places.slotOf(change.object.node), *outcome.place);
        if (outcome.isTaken)
            assignments.set(change.slot, change.value);
    }
}
