#pragma once

#include "Scene/qxClipping.h"
#include "qxAssignments.h"

class qxAnalyzerVariant;

/// The clipping planes that sets lead to, found out by applying them. The value of the slot is the
/// place of a plane in their list; the present one is first.
class qxClippings {
public:
    explicit qxClippings(qxSlots &slots);
    qxClippings(const qxClippings &) = delete;

    /// A set's clipping, which is to be known to close().
    void add(const qxAnalyzerVariant &settings);
    /// Finds all planes that these lead to, in any order. The plane is another one afterwards.
    void close();

    /// After close: appends what the settings do.
    void apply(const qxAnalyzerVariant &settings, qxAssignments &assignments) const;
    int slot() const { return m_slot; }
    const std::vector<qxClipping> &all() const { return m_all; }

private:
    /// What settings do: the same whatever was there, or a table.
    struct Change {
        std::shared_ptr<qxAnalyzerVariant> settings;
        std::optional<qxSlots::Value> value;
        qxAssignments::Table table;
    };

    qxSlots::Value placeOf(const qxClipping &clipping);

    qxSlots &m_slots;
    const int m_slot;
    std::vector<qxClipping> m_all;
    std::map<std::string, Change> m_changes; ///< by the script of the settings
};
