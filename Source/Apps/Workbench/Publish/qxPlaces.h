#pragma once

#include "qxSlots.h"

#include <OpenSG/OSGTransform.h>

#include <array>
#include <map>

/// Where choices and poses put nodes, found out by putting them there. A place is the number of a
/// matrix among those of the core, which clones share; the first one is where it stands at first.
class qxPlaces {
public:
    explicit qxPlaces(qxSlots &slots) : m_slots(slots) {}
    qxPlaces(const qxPlaces &) = delete;

    /// What giving an aspect a value does.
    struct Outcome {
        bool isTaken = true; ///< the scene takes the value
        std::optional<qxSlots::Value> place; ///< where it puts the core; none when that stays
    };
    /// Tries it, unless it was tried before. The scene is not as it was afterwards.
    const Outcome &outcome(const qxSceneObject &object, qxAspect aspect, qxSlots::Value value);
    /// The same for what was tried.
    const Outcome &known(const qxSceneObject &object, qxAspect aspect, qxSlots::Value value) const;

    /// The slot of the core's place; -1 for one that is no transform, or that nothing was tried
    /// with.
    int slotOf(const osg::NodePtr &node) const;
    /// The matrices of that slot by their numbers.
    std::vector<osg::Matrix> matrices(int slot) const;

private:
    typedef std::array<float, 16> Numbers;
    typedef std::map<Numbers, qxSlots::Value> Places;
    typedef std::pair<qxForecast::Key, qxSlots::Value> Trial;

    static Trial trialOf(const qxSceneObject &object, qxAspect aspect, qxSlots::Value value);
    Outcome tryOut(const qxSceneObject &object, qxAspect aspect, qxSlots::Value value);
    int addSlot(const osg::TransformPtr &transform);
    qxSlots::Value placeOf(const osg::Matrix &matrix, int slot);

    qxSlots &m_slots;
    QHash<osg::UInt32, int> m_cores; ///< the slots
    QHash<int, Places> m_places; ///< by slot
    std::map<Trial, Outcome> m_outcomes;
};
