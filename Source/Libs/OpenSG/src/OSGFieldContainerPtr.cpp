#include <OpenSG/OSGFieldContainerPtr.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>

#include "OSGWarning.h"

#include <limits>
#include <ostream>

namespace osg {

const NullFieldContainerPtr NullFC;

Int32 FieldContainerPtrBase::getRefCount() const
{
    return m_object ? m_object->m_refCount : 0;
}

UInt32 FieldContainerPtrBase::getFieldContainerId() const
{
    return m_object->m_id;
}

UInt16 FieldContainerPtrBase::getContainerSize() const
{
    return UInt16(m_object->getContainerSize());
}

std::ostream &operator<<(std::ostream &out, const FieldContainerPtrBase &object)
{
    if (!object)
        return out << "NullFC";
    return out << object.getBaseCPtr()->getTypeName() << ' ' << object.getFieldContainerId();
}

void addRefCP(const FieldContainerPtrBase &object)
{
    FieldContainer *container = object.getBaseCPtr();
    if (!container)
        return;
    ++container->m_refCount;
    Thread::getCurrentChangeList()->addAddRefd(container->m_id);
}

void subRefCP(const FieldContainerPtrBase &object)
{
    FieldContainer *container = object.m_object;
    if (!container)
        return;
    Thread::getCurrentChangeList()->addSubRefd(container->m_id);
    if (--container->m_refCount > 0)
        return;
    object.m_object = nullptr;
    // What refers to the object while it goes, itself included, must not destroy it again.
    container->m_refCount = std::numeric_limits<Int32>::max() / 2;
    delete container;
}

void clearRefCP(FieldContainerPtrBase &object)
{
    subRefCP(object);
    object = NullFC;
}

void setRefdCP(FieldContainerPtrBase &target, const FieldContainerPtrBase &value)
{
    if (target == value)
        return;
    // By id, because the object may be gone before its pointer is looked at again.
    const UInt32 id = value ? value.getFieldContainerId() : 0;
    subRefCP(target);
    if (id != 0 && !FieldContainerFactory::the()->getContainer(id))
        fail("setRefdCP: the new value went with the old one, which alone held it");
    target = value;
    addRefCP(target);
}

void endEditCP(const FieldContainerPtr &object, BitVector fields, UInt32 origin)
{
    endEditNotChangedCP(object, fields, origin);
    changedCP(object, fields, origin);
}

void changedCP(const FieldContainerPtr &object, BitVector fields, UInt32 origin)
{
    if (object)
        object->changed(fields, origin);
}

void endEditNotChangedCP(const FieldContainerPtr &object, BitVector fields, UInt32)
{
    if (object)
        Thread::getCurrentChangeList()->addChanged(object, fields);
}

} // namespace osg
