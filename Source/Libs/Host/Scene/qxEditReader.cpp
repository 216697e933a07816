#include "Scene/qxEditReader.h"

#include <OpenSG/OSGThread.h>

bool qxEditReader::read(const osg::FieldContainerPtr &marked, const Visit &visit)
{
    osg::ChangeList *const list = osg::Thread::getCurrentChangeList();
    const osg::ChangeList::changed_const_iterator first = list->beginChanged();
    const osg::UInt32 size = osg::UInt32(list->endChanged() - first);

    const bool complete =
        m_position > 0 && m_position <= size && *(first + (m_position - 1)) == m_mark;
    if (complete && m_position == size)
        return true;
    if (complete) {
        for (auto entry = first + m_position; entry != list->endChanged(); ++entry)
            visit(entry->first, entry->second);
    }
    m_mark = {marked.getFieldContainerId(), osg::BitVector(++m_serial) << 32};
    list->addChanged(marked, m_mark.second);
    m_position = osg::UInt32(list->endChanged() - list->beginChanged());
    return complete;
}
