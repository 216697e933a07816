#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

#include <utility>
#include <vector>

namespace osg {

/// What happened to containers, in order: edits as (id, fields), and the ids of references taken
/// and released, of containers created and destroyed. Read-only unless said otherwise, and then
/// nothing is recorded. Containers are named by id, because they may be gone when the list is read.
class ChangeList {
public:
    /// Id of a container and the fields that were edited.
    typedef std::pair<UInt32, BitVector> ChangeEntry;
    typedef std::vector<ChangeEntry>::const_iterator changed_const_iterator;
    typedef std::vector<UInt32>::const_iterator idref_const_iterator;

    /// Whether lists, and the one that osgInit() sets up, record from the beginning.
    static void setReadWriteDefault(bool readWrite = true);

    ChangeList();

    /// Stops and starts recording; what is recorded stays.
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }
    bool isReadOnly() const { return m_readOnly; }

    /// Edits, one entry for each bracket that ended.
    changed_const_iterator beginChanged() const { return m_changed.begin(); }
    changed_const_iterator endChanged() const { return m_changed.end(); }
    UInt32 sizeChanged() const { return UInt32(m_changed.size()); }
    /// Containers by id: referenced, released, created, destroyed.
    idref_const_iterator beginAddRefd() const { return m_addRefd.begin(); }
    idref_const_iterator endAddRefd() const { return m_addRefd.end(); }
    UInt32 sizeAddRefd() const { return UInt32(m_addRefd.size()); }
    idref_const_iterator beginSubRefd() const { return m_subRefd.begin(); }
    idref_const_iterator endSubRefd() const { return m_subRefd.end(); }
    UInt32 sizeSubRefd() const { return UInt32(m_subRefd.size()); }
    idref_const_iterator beginCreated() const { return m_created.begin(); }
    idref_const_iterator endCreated() const { return m_created.end(); }
    UInt32 sizeCreated() const { return UInt32(m_created.size()); }
    idref_const_iterator beginDestroyed() const { return m_destroyed.begin(); }
    idref_const_iterator endDestroyed() const { return m_destroyed.end(); }
    UInt32 sizeDestroyed() const { return UInt32(m_destroyed.size()); }

    /// All of these do nothing while the list is read-only.
    void addChanged(const FieldContainerPtr &object, BitVector fields)
    {
        if (!m_readOnly)
            m_changed.emplace_back(object.getFieldContainerId(), fields);
    }
    void addAddRefd(UInt32 id) { append(m_addRefd, id); }
    void addSubRefd(UInt32 id) { append(m_subRefd, id); }
    void addCreated(UInt32 id) { append(m_created, id); }
    void addDestroyed(UInt32 id) { append(m_destroyed, id); }

    /// Whether nothing at all is recorded.
    bool empty() const;
    /// Forgets all entries; the read-only mark stays.
    void clearAll();
    /// Exchanges the entries, not the read-only marks.
    void swap(ChangeList &other);
    /// Appends the entries of \a other.
    void merge(const ChangeList &other);

    /// Carrying edits over to other threads' copies: there are none, so nothing is left to do.
    void apply() {}
    void applyAndClear() { clearAll(); }

    /// Prints the entries to standard error.
    void dump() const;

private:
    void append(std::vector<UInt32> &list, UInt32 id)
    {
        if (!m_readOnly)
            list.push_back(id);
    }

    bool m_readOnly;
    std::vector<ChangeEntry> m_changed;
    std::vector<UInt32> m_addRefd;
    std::vector<UInt32> m_subRefd;
    std::vector<UInt32> m_created;
    std::vector<UInt32> m_destroyed;
};

} // namespace osg
