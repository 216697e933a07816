#include "qxSlots.h"

#include <algorithm>

int qxSlots::add(Value start)
{
    m_slots.push_back({{start}, {start}});
    return int(m_slots.size()) - 1;
}

int qxSlots::find(const qxSceneObject &object, qxAspect aspect) const
{
    return m_aspects.value(qxForecast::keyOf(object, aspect), -1);
}

int qxSlots::of(const qxSceneObject &object, qxAspect aspect)
{
    const int known = find(object, aspect);
    if (known >= 0)
        return known;
    const int slot = add(qxStateRules::valueOf(object, aspect));
    m_aspects.insert(qxForecast::keyOf(object, aspect), slot);
    return slot;
}

void qxSlots::note(int slot, Value value)
{
    Slot &noted = m_slots[std::size_t(slot)];
    if (noted.known.contains(value))
        return;
    noted.known.insert(value);
    noted.values.push_back(value);
}

void qxSlots::finish()
{
    for (Slot &slot : m_slots) {
        if (slot.values.size() > 1)
            slot.number = m_count++;
    }
}

QJsonArray qxSlots::starts() const
{
    QJsonArray starts;
    for (const Slot &slot : m_slots) {
        if (slot.number >= 0)
            starts += double(slot.values.front());
    }
    starts += 0;
    return starts;
}

QJsonArray qxSlots::condition(int slot, const Values &holding) const
{
    if (holding.size() == values(slot).size())
        return QJsonArray();
    if (holding.empty())
        return never();
    QJsonArray list;
    for (const Value value : holding)
        list += double(value);
    return {QJsonArray{number(slot), list}};
}

QJsonArray qxSlots::never()
{
    return {QJsonArray{0, QJsonArray()}};
}
