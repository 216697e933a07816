#include "Internal/qxStateList.h"

#include <algorithm>

namespace {

/// Up to this length going through the list is as fast as asking an index.
constexpr std::size_t ShortList = 16;

} // namespace

qxStateList::qxStateList(const qxStateList &other) : qxNameWatcher(), m_states(other.m_states)
{
    watchAll();
}

qxStateList &qxStateList::operator=(const qxStateList &other)
{
    m_states = other.m_states;
    m_index.clear();
    watchAll();
    return *this;
}

qxVariantState *qxStateList::find(const QString &variant)
{
    const iterator place = locate(variant);
    return place == m_states.end() ? nullptr : &*place;
}

const qxVariantState *qxStateList::find(const QString &variant) const
{
    const iterator place = locate(variant);
    return place == m_states.end() ? nullptr : &*place;
}

void qxStateList::add(const QString &variant, const QString &state)
{
    if (qxVariantState *known = find(variant)) {
        known->state = state;
        return;
    }
    m_states.push_back({variant, state});
    m_states.back().variant.setWatcher(this);
    if (!m_index.isEmpty())
        m_index.insert(variant, std::prev(m_states.end()));
}

void qxStateList::remove(const QString &variant)
{
    const iterator place = locate(variant);
    if (place == m_states.end())
        return;
    const bool hasTwins = std::size_t(m_index.size()) != m_states.size();
    if (hasTwins)
        m_index.clear(); // The next entry of the variant takes its place.
    else
        m_index.remove(variant);
    m_states.erase(place);
}

void qxStateList::clear()
{
    m_states.clear();
    m_index.clear();
}

qxStateList::iterator qxStateList::locate(const QString &variant) const
{
    if (m_states.size() <= ShortList) {
        m_index.clear();
        return std::find_if(m_states.begin(), m_states.end(),
                            [&](const qxVariantState &each) { return each.variant == variant; });
    }
    if (m_index.isEmpty())
        buildIndex();
    return m_index.value(variant, m_states.end());
}

void qxStateList::buildIndex() const
{
    for (iterator each = m_states.begin(); each != m_states.end(); ++each) {
        if (!m_index.contains(each->variant))
            m_index.insert(each->variant, each);
    }
}

void qxStateList::watchAll()
{
    for (qxVariantState &each : m_states)
        each.variant.setWatcher(this);
}
