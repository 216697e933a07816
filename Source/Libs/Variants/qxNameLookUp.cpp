#include "qxNameLookUp.h"

int qxNameLookUp::find(const QString &name) const
{
    if (places() <= ShortList)
        return search(name);
    const auto hit = m_first.constFind(name);
    if (hit != m_first.constEnd() && m_renames == s_renames
        && *m_entries[std::size_t(*hit)].name == name)
        return *hit;
    if (!isUpToDate())
        build();
    return m_first.value(name, None);
}

int qxNameLookUp::placeOf(const QString *name) const
{
    const int first = find(*name);
    if (first != None && m_entries[std::size_t(first)].name == name)
        return first;
    for (int place = 0; place < places(); ++place) {
        if (m_entries[std::size_t(place)].name == name)
            return place;
    }
    return None;
}

void qxNameLookUp::append(const QString *name)
{
    m_entries.push_back({name, QString()});
    ++m_count;
    if (!m_first.isEmpty())
        enter(places() - 1);
}

void qxNameLookUp::remove(int place)
{
    Entry &entry = m_entries[std::size_t(place)];
    const QString known = entry.known;
    entry = {nullptr, QString()};
    --m_count;
    while (!m_entries.empty() && !m_entries.back().name)
        m_entries.pop_back();
    const auto first = m_first.find(known);
    if (first == m_first.end() || *first != place)
        return;
    m_first.erase(first);
    for (int next = place + 1; m_hasNamesakes && next < places(); ++next) {
        const Entry &namesake = m_entries[std::size_t(next)];
        if (namesake.name && namesake.known == known) {
            m_first.insert(known, next);
            return;
        }
    }
}

void qxNameLookUp::clear()
{
    m_entries.clear();
    m_count = 0;
    m_first.clear();
    m_hasNamesakes = false;
}

int qxNameLookUp::search(const QString &name) const
{
    for (int place = 0; place < places(); ++place) {
        const Entry &entry = m_entries[std::size_t(place)];
        if (entry.name && *entry.name == name)
            return place;
    }
    return None;
}

/// Whether every name is the one that the index knows; to be asked for long lists only.
bool qxNameLookUp::isUpToDate() const
{
    if (m_first.isEmpty())
        return false;
    const quint64 promise = qxUnchangedNames::s_current;
    if (promise != 0 && m_checkedDuring == promise && m_renames == s_renames)
        return true;
    for (Entry &entry : m_entries) {
        if (!entry.name || entry.name->isSharedWith(entry.known))
            continue;
        if (*entry.name != entry.known)
            return false;
        entry.known = *entry.name;
    }
    m_checkedDuring = promise;
    m_renames = s_renames;
    return true;
}

void qxNameLookUp::build() const
{
    m_first.clear();
    m_first.reserve(m_count);
    m_hasNamesakes = false;
    for (int place = 0; place < places(); ++place) {
        if (m_entries[std::size_t(place)].name)
            enter(place);
    }
    m_checkedDuring = qxUnchangedNames::s_current;
    m_renames = s_renames;
}

void qxNameLookUp::enter(int place) const
{
    Entry &entry = m_entries[std::size_t(place)];
    entry.known = *entry.name;
    if (m_first.contains(entry.known))
        m_hasNamesakes = true;
    else
        m_first.insert(entry.known, place);
}

quint64 qxNameLookUp::s_renames = 0;
quint64 qxUnchangedNames::s_current = 0;

qxUnchangedNames::qxUnchangedNames() : m_before(s_current)
{
    static quint64 count = 0;
    if (s_current == 0)
        s_current = ++count;
}
