#include "Internal/Registry/qxSetUse.h"

#include "qxVariantGroup.h"
#include "qxVariantSet.h"

qxSetUse::qxSetUse(qxVariantSet &set) : m_set(set)
{
    ++m_set.m_uses;
}

qxSetUse::~qxSetUse()
{
    if (--m_set.m_uses == 0 && m_set.m_isRemoved)
        delete &m_set;
}

void qxSetUse::destroy(qxVariantSet *set)
{
    if (set->m_uses == 0) {
        delete set;
        return;
    }
    set->m_isRemoved = true;
    if (set->group)
        set->group->remove(set);
}
