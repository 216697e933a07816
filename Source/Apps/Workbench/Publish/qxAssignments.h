#pragma once

#include "qxSlots.h"

#include <map>

/// Gathers what one step does to slots, one thing after the other, and makes the shortest list of
/// it: what is known beforehand needs no table, and what does not change is left out.
class qxAssignments {
public:
    typedef std::map<qxSlots::Value, qxSlots::Value> Table; ///< others stay as they are

    /// The slots must be finished.
    explicit qxAssignments(const qxSlots &slots) : m_slots(slots) {}

    void set(int slot, qxSlots::Value value);
    /// The slot takes what the table has for the value of `from`. The table must live as long as
    /// this.
    void look(int slot, int from, const Table &table);

    /// As published.ts has them.
    QJsonArray json() const;
    /// That all slots have what they are left with, as far as that is known beforehand.
    QJsonArray condition() const;
    /// Whether anything is known beforehand, be it of slots that never change.
    bool isDefinite() const { return m_isDefinite; }

private:
    struct Assignment {
        int slot;
        qxSlots::Value value; ///< without a table
        int from;
        const Table *table;
    };

    const qxSlots &m_slots;
    std::vector<Assignment> m_list;
    QHash<int, int> m_known; ///< by slot: its place in the list
    bool m_isDefinite = false;
};
