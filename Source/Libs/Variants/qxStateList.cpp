#include "qxStateList.h"

qxStateList &qxStateList::operator=(const qxStateList &other)
{
    m_states = other.m_states;
    fillIndex();
    return *this;
}

qxVariantState *qxStateList::find(const QString &variant)
{
    const int place = m_index.find(variant);
    return place == qxNameLookUp::None ? nullptr : &*m_places[std::size_t(place)];
}

const qxVariantState *qxStateList::find(const QString &variant) const
{
    return const_cast<qxStateList *>(this)->find(variant);
}

void qxStateList::add(const QString &variant, const QString &state)
{
    if (qxVariantState *known = find(variant)) {
        known->state = state;
        return;
    }
    m_states.push_back({variant, state});
    m_places.push_back(std::prev(m_states.end()));
    m_index.append(&m_states.back().variant);
}

void qxStateList::remove(const QString &variant)
{
    const int place = m_index.find(variant);
    if (place == qxNameLookUp::None)
        return;
    m_index.remove(place);
    m_states.erase(m_places[std::size_t(place)]);
    m_places.resize(std::size_t(m_index.places()));
    if (m_index.isSparse())
        fillIndex();
}

void qxStateList::clear()
{
    m_states.clear();
    fillIndex();
}

void qxStateList::fillIndex()
{
    m_places.clear();
    m_index.clear();
    for (iterator each = m_states.begin(); each != m_states.end(); ++each) {
        m_places.push_back(each);
        m_index.append(&each->variant);
    }
}
