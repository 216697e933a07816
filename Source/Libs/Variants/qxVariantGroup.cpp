#include "qxVariantGroup.h"

#include "qxVariantSet.h"

#include <algorithm>

qxVariantGroup::qxVariantGroup() = default;

qxVariantGroup::qxVariantGroup(const QString &groupName) : name(groupName) {}

qxVariantGroup::~qxVariantGroup()
{
    clear();
}

void qxVariantGroup::add(qxVariantSet *set)
{
    insert(sets.end(), set);
}

void qxVariantGroup::append(qxVariantSet *set)
{
    sets.push_back(set);
    link(set);
}

void qxVariantGroup::insert(iterator position, qxVariantSet *set)
{
    if (set->group || contains(set))
        return;
    sets.insert(position, set);
    link(set);
}

void qxVariantGroup::remove(qxVariantSet *set)
{
    if (set->group != this)
        return;
    const iterator place = find(set);
    if (place == sets.end())
        return;
    set->group = nullptr;
    sets.erase(place);
}

void qxVariantGroup::link(qxVariantSet *set)
{
    set->group = this;
    set->m_leaveGroup = [](qxVariantSet *leaving) { leaving->group->remove(leaving); };
}

bool qxVariantGroup::contains(qxVariantSet *set) const
{
    return find(set) != sets.end();
}

qxVariantGroup::iterator qxVariantGroup::find(qxVariantSet *set)
{
    return std::find(sets.begin(), sets.end(), set);
}

qxVariantGroup::const_iterator qxVariantGroup::find(qxVariantSet *set) const
{
    return std::find(sets.begin(), sets.end(), set);
}

void qxVariantGroup::clear()
{
    for (qxVariantSet *set : sets)
        set->group = nullptr;
    sets.clear();
}
