#include "qxUniqueNames.h"

namespace {

/// Up to this length going through the list is as fast as asking an index.
constexpr int ShortList = 16;

} // namespace

bool qxUniqueNames::contains(const QString &name) const
{
    return m_index.isEmpty() ? m_names.contains(name) : m_index.contains(name);
}

void qxUniqueNames::add(const QString &name)
{
    if (contains(name))
        return;
    m_names.append(name);
    if (!m_index.isEmpty())
        m_index.insert(name);
    else if (m_names.size() > ShortList)
        m_index = QSet<QString>(m_names.begin(), m_names.end());
}

void qxUniqueNames::remove(const QString &name)
{
    m_names.removeOne(name);
    m_index.remove(name);
}

void qxUniqueNames::clear()
{
    m_names.clear();
    m_index.clear();
}
