#pragma once

#include "qxForecast.h"

#include <QJsonArray>
#include <QSet>

/// What a state of the scene consists of, as numbers: one slot for each thing that states change.
/// Slots are told by their places here; those of which more than one value is known have a number
/// among those that are published.
class qxSlots {
public:
    typedef osg::Int64 Value;
    typedef std::vector<Value> Values;

    /// A new one with that value at the start.
    int add(Value start);
    ///@{
    /// The slot of an aspect, which clones share. The second one adds it with the present value.
    int find(const qxSceneObject &object, qxAspect aspect) const; ///< -1 for none
    int of(const qxSceneObject &object, qxAspect aspect);
    ///@}
    /// That the slot may have the value, too.
    void note(int slot, Value value);

    Value start(int slot) const { return m_slots[std::size_t(slot)].values.front(); }
    /// All that are known, that of the start first, then as they were noted.
    const Values &values(int slot) const { return m_slots[std::size_t(slot)].values; }
    bool isChanging(int slot) const { return values(slot).size() > 1; }

    /// Gives numbers to the changing slots. Nothing may be added or noted after it.
    void finish();
    ///@{
    /// After finish: the number of a slot, -1 for one that does not change; and that of one that
    /// is always 0.
    int number(int slot) const { return m_slots[std::size_t(slot)].number; }
    int constant() const { return m_count; }
    ///@}
    /// After finish: the start values by number.
    QJsonArray starts() const;

    ///@{
    /// After finish: a condition of published.ts, or a part of one: that the slot has one of these
    /// values of its own; empty when it always does. And the one that never holds.
    QJsonArray condition(int slot, const Values &holding) const;
    static QJsonArray never();
    ///@}

private:
    struct Slot {
        Values values;
        QSet<Value> known;
        int number = -1;
    };

    std::vector<Slot> m_slots;
    QHash<qxForecast::Key, int> m_aspects;
    int m_count = 0; ///< of those with a number
};
