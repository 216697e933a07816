#pragma once

#include "qxNodePtr.h"

#include <cstdint>
#include <vector>

/// Finds the nodes of the scene by name. Made in one pass; what changes in it later is not seen,
/// and a node that is renamed, removed or added outdates the index.
class qxNameIndex {
public:
    qxNameIndex();

    /// The first node of that name in scene order, or null.
    qxNodePtr first(const char *name) const;
    /// All nodes of that name in scene order.
    std::vector<qxNodePtr> all(const char *name) const;

private:
    /// Nodes whose names hash to one slot are chained in scene order.
    struct Entry {
        osg::NodePtr node;
        std::size_t hash;
        std::uint32_t next;
    };

    std::uint32_t chain(std::size_t hash) const { return m_slots[hash & (m_slots.size() - 1)]; }
    bool matches(const Entry &entry, std::size_t hash, const char *name) const;

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots;
};
