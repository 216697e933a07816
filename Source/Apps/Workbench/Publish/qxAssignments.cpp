#include "qxAssignments.h"

#include <QJsonObject>

// Nothing behind it reads a slot that is known, so its value may change where it stands.
void qxAssignments::set(int slot, qxSlots::Value value)
{
    m_isDefinite = true;
    if (!m_slots.isChanging(slot))
        return;
    const auto known = m_known.constFind(slot);
    if (known != m_known.constEnd()) {
        m_list[std::size_t(*known)].value = value;
        return;
    }
    m_known.insert(slot, int(m_list.size()));
    m_list.push_back({slot, value, -1, nullptr});
}

void qxAssignments::look(int slot, int from, const Table &table)
{
    if (!m_slots.isChanging(slot) || table.empty())
        return;
    const int known = m_known.value(from, -1);
    if (known < 0 && m_slots.isChanging(from)) {
        m_known.remove(slot);
        m_list.push_back({slot, 0, from, &table});
        return;
    }
    const auto found =
        table.find(known < 0 ? m_slots.start(from) : m_list[std::size_t(known)].value);
    if (found != table.end())
        set(slot, found->second);
}

QJsonArray qxAssignments::json() const
{
    QJsonArray json;
    for (const Assignment &each : m_list) {
        if (!each.table) {
            json += QJsonArray{m_slots.number(each.slot), double(each.value)};
            continue;
        }
        QJsonObject table;
        for (const auto &[before, after] : *each.table)
            table[QString::number(before)] = double(after);
        json += QJsonArray{m_slots.number(each.slot), m_slots.number(each.from), table};
    }
    return json;
}

QJsonArray qxAssignments::condition() const
{
    QJsonArray condition;
    for (std::size_t i = 0; i < m_list.size(); ++i) {
        const Assignment &each = m_list[i];
        if (m_known.value(each.slot, -1) == int(i))
            condition += QJsonArray{m_slots.number(each.slot), QJsonArray{double(each.value)}};
    }
    return condition;
}
