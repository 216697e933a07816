#pragma once

#include "qxAssignments.h"
#include "qxPlaces.h"
#include "qxSupposedStates.h"

#include <deque>

struct qxVariantKind;

/// What states of variants do to slots: asked of the rules, for every value that the slots can
/// have. Requests are made first; then close() looks for the values; then steps are made of them.
class qxSelectionEffects {
public:
    explicit qxSelectionEffects(qxSlots &slots) : m_slots(slots), m_places(slots) {}
    qxSelectionEffects(const qxSelectionEffects &) = delete;

    /// Tells a request.
    typedef int Request;
    /// That a variant with that scene object is put into the state. Equal ones are asked once.
    Request request(const qxVariantKind &kind, const QString &object, const QString &state);

    /// Finds all values that the requests can lead to, in any order. Choices and poses of the scene
    /// are other ones afterwards.
    void close();

    /// After close: appends what the request does.
    void apply(Request request, qxAssignments &assignments) const;
    /// After close.
    const qxPlaces &places() const { return m_places; }

private:
    /// A state that does something else for each value of a slot.
    struct Step {
        const qxStateRule *rule;
        QString state;
        qxSceneObject object;
        qxAspect aspect;
        int slot;
        int placeSlot = -1;
        qxAssignments::Table values = {};
        qxAssignments::Table places = {};
    };
    /// What a request does to one aspect of an object: a step, or else it takes a value.
    struct Change {
        qxSceneObject object;
        qxAspect aspect;
        int slot;
        qxSlots::Value value;
        int step; ///< in m_steps; -1 for none
    };
    typedef std::vector<Change> Changes;

    Changes changesOf(const qxStateRule &rule, const QString &object, const QString &state);
    int stepOf(const qxStateRule &rule, const QString &state, const qxEffect &effect, int slot);
    void closeSteps(const std::vector<int> &steps);
    void closeStep(Step &step, qxSlots::Value before);
    /// Notes what a value brings about.
    const qxPlaces::Outcome &note(const qxSceneObject &object, qxAspect aspect, int slot,
                                  qxSlots::Value value);

    qxSlots &m_slots;
    qxPlaces m_places;
    qxSupposedStates m_rules;
    QHash<QString, Request> m_requests;
    std::vector<Changes> m_changes; ///< of the requests
    std::deque<Step> m_steps; ///< they stay where they are
};
