#include <OpenSG/OSGChangeList.h>

#include <OpenSG/OSGThread.h>

#include <iostream>

namespace osg {

static bool readWriteDefault = false;

void ChangeList::setReadWriteDefault(bool readWrite)
{
    readWriteDefault = readWrite;
}

ChangeList::ChangeList() : m_readOnly(!readWriteDefault) {}

bool ChangeList::empty() const
{
    return m_changed.empty() && m_addRefd.empty() && m_subRefd.empty() && m_created.empty()
        && m_destroyed.empty();
}

void ChangeList::clearAll()
{
    m_changed.clear();
    m_addRefd.clear();
    m_subRefd.clear();
    m_created.clear();
    m_destroyed.clear();
}

void ChangeList::swap(ChangeList &other)
{
    m_changed.swap(other.m_changed);
    m_addRefd.swap(other.m_addRefd);
    m_subRefd.swap(other.m_subRefd);
    m_created.swap(other.m_created);
    m_destroyed.swap(other.m_destroyed);
}

template <class Entry>
static void appendAll(std::vector<Entry> &list, const std::vector<Entry> &more)
{
    // One by one, so that a list can be merged with itself.
    for (size_t i = 0, count = more.size(); i < count; ++i)
        list.push_back(Entry(more[i]));
}

void ChangeList::merge(const ChangeList &other)
{
    appendAll(m_changed, other.m_changed);
    appendAll(m_addRefd, other.m_addRefd);
    appendAll(m_subRefd, other.m_subRefd);
    appendAll(m_created, other.m_created);
    appendAll(m_destroyed, other.m_destroyed);
}

static void dumpIds(const char *title, const std::vector<UInt32> &ids)
{
    std::cerr << title << ':';
    for (const UInt32 id : ids)
        std::cerr << ' ' << id;
    std::cerr << '\n';
}

void ChangeList::dump() const
{
    std::cerr << "changed:";
    for (const ChangeEntry &entry : m_changed)
        std::cerr << ' ' << entry.first << '/' << std::hex << entry.second << std::dec;
    std::cerr << '\n';
    dumpIds("referenced", m_addRefd);
    dumpIds("released", m_subRefd);
    dumpIds("created", m_created);
    dumpIds("destroyed", m_destroyed);
}

ChangeList *Thread::getCurrentChangeList()
{
    // Made at the first use, which comes before any container.
    static ChangeList list;
    return &list;
}

} // namespace osg
