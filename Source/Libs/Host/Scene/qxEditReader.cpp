#include "Scene/qxEditReader.h"

#include <OpenSG/OSGThread.h>

bool qxEditReader::read(const osg::FieldContainerPtr &marked, const Follower &follower)
{
    osg::ChangeList *const list = osg::Thread::getCurrentChangeList();
    const auto first = list->beginChanged();
    const std::ptrdiff_t size = list->endChanged() - first;
    const std::ptrdiff_t destroyed = list->endDestroyed() - list->beginDestroyed();

    const bool complete =
        m_position > 0 && m_position <= size && *(first + (m_position - 1)) == m_mark;
    if (complete && m_position == size && m_destroyed == destroyed)
        return true;
    if (complete) {
        for (auto entry = first + m_position; entry != list->endChanged(); ++entry)
            follower.edited(entry->first, entry->second);
        for (auto id = list->beginDestroyed() + m_destroyed; id != list->endDestroyed(); ++id)
            follower.destroyed(*id);
    }
    m_mark = {marked.getFieldContainerId(), osg::BitVector(++m_serial) << 32};
    list->addChanged(marked, m_mark.second);
    m_position = list->endChanged() - list->beginChanged();
    m_destroyed = destroyed;
    return complete;
}
