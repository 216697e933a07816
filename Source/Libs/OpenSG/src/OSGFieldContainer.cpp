#include <OpenSG/OSGFieldContainer.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>

#include <iostream>
#include <string>

namespace osg {

FieldContainerType FieldContainer::_type("FieldContainer", NULL);

FieldContainer::FieldContainer() : m_id(FieldContainerFactory::the()->registerContainer(this)) {}

FieldContainer::FieldContainer(const FieldContainer &) : FieldContainer() {}

FieldContainer::~FieldContainer()
{
    Thread::getCurrentChangeList()->addDestroyed(m_id);
    FieldContainerFactory::the()->unregisterContainer(m_id);
}

FieldContainerType &FieldContainer::getType()
{
    return _type;
}

const FieldContainerType &FieldContainer::getType() const
{
    return _type;
}

Field *FieldContainer::getField(UInt32 id)
{
    const FieldDescription *description = getType().getFieldDescription(id);
    return description ? description->getField(*this) : NULL;
}

Field *FieldContainer::getField(const Char8 *name)
{
    const FieldDescription *description = getType().findFieldDescription(name);
    return description ? description->getField(*this) : NULL;
}

void FieldContainer::changed(BitVector, UInt32) {}

void FieldContainer::dumpHeader(UInt32 indent) const
{
    std::cerr << std::string(indent, ' ') << getTypeName() << ' ' << m_id << '\n';
}

void FieldContainer::recordCreated(const FieldContainer &object)
{
    Thread::getCurrentChangeList()->addCreated(object.m_id);
}

} // namespace osg
