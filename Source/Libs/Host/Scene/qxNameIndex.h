#pragma once

#include "qxNodePtr.h"

#include <cstdint>
#include <vector>

/// Finds nodes of the scene or of a part of it by name. It is built in one pass and outdated when a
/// node is renamed or added. It holds ids, so removed nodes are no longer found.
class qxNameIndex {
public:
    /// Of these nodes and everything below them; null ones are ignored.
    explicit qxNameIndex(const std::vector<osg::NodePtr> &tops);

    /// The first node of that name in the order of the walk, or null.
    qxNodePtr first(const char *name) const;
    /// All nodes of that name in that order.
    std::vector<qxNodePtr> all(const char *name) const;

private:
    /// Nodes whose names hash to one slot are chained in scene order.
    struct Entry {
        osg::UInt32 id;
        std::size_t hash;
        std::uint32_t next;
    };

    std::uint32_t chain(std::size_t hash) const { return m_slots[hash & (m_slots.size() - 1)]; }
    /// The node of the entry when it still is one of that name in the scene, else null.
    static osg::NodePtr match(const Entry &entry, std::size_t hash, const char *name);

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots;
};

/// The find cache of qxScenegraph.
struct qxFoundNames {
    qxNameIndex scene;
    qxNameIndex overlays;

    /// Null while the cache is off.
    static const qxFoundNames *current();
};
