#pragma once

#include <algorithm>
#include <deque>

/// Functions that run in the order of their registration; others may be added and removed
/// meanwhile.
///
/// A run skips items that were removed before their turn or added after it began. An item that is
/// removed while it runs stays alive until no run is in progress.
template <class T>
class qxCallList {
public:
    /// Appends `item`; the id is never 0 and never used again.
    int add(const T &item)
    {
        m_entries.push_back({++m_lastId, item});
        return m_lastId;
    }

    /// An unknown id is ignored.
    void remove(int id)
    {
        for (Entry &entry : m_entries) {
            if (id != 0 && entry.id == id)
                entry.id = 0;
        }
        if (m_runs == 0)
            dropRemoved();
        else
            m_dirty = true;
    }

    /// The id of the first item for which `test(item)` holds, 0 when there is none.
    template <class Test>
    int find(const Test &test) const
    {
        for (const Entry &entry : m_entries) {
            if (entry.id != 0 && test(entry.item))
                return entry.id;
        }
        return 0;
    }

    /// Calls `call(item)` for each item.
    template <class Call>
    void run(const Call &call)
    {
        const Run scope(*this);
        const std::size_t count = m_entries.size();
        for (std::size_t i = 0; i < count; ++i) {
            const Entry &entry = m_entries[i]; // a deque: stays where it is when others are added
            if (entry.id != 0)
                call(entry.item);
        }
    }

private:
    struct Entry {
        int id; ///< 0 once removed
        T item;
    };

    struct Run {
        explicit Run(qxCallList &calls) : list(calls) { ++list.m_runs; }
        ~Run()
        {
            if (--list.m_runs == 0 && list.m_dirty)
                list.dropRemoved();
        }
        qxCallList &list;
    };

    void dropRemoved()
    {
        const auto removed = [](const Entry &entry) { return entry.id == 0; };
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), removed),
                        m_entries.end());
        m_dirty = false;
    }

    std::deque<Entry> m_entries;
    int m_lastId = 0;
    int m_runs = 0;
    bool m_dirty = false;
};
