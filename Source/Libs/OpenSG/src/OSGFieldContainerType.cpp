#include <OpenSG/OSGFieldContainerType.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

#include <cstring>

namespace osg {

FieldContainerType::FieldContainerType(const Char8 *name, const Char8 *parentName,
                                       const Char8 *groupName, PrototypeCreateF createPrototype,
                                       InitContainerF initMethod, FieldDescription **descs,
                                       UInt32 bytesOfDescs, bool)
    : DataType(name, parentName),
      m_groupId(FieldContainerFactory::the()->registerGroup(groupName ? groupName : name)),
      m_createPrototype(createPrototype), m_ownDescs(descs),
      m_ownDescCount(bytesOfDescs / sizeof(FieldDescription *))
{
    FieldContainerFactory::the()->registerType(this);
    if (initMethod)
        initMethod();
}

FieldContainerType::~FieldContainerType()
{
    // The prototype's code goes with the library that the type is in.
    dropPrototype();
    FieldContainerFactory::the()->unregisterType(this);
    for (UInt32 i = 0; i < m_ownDescCount; ++i)
        delete m_ownDescs[i];
}

bool FieldContainerType::isNode() const
{
    return isDerivedFrom(Node::getClassType());
}

bool FieldContainerType::isNodeCore() const
{
    return isDerivedFrom(NodeCore::getClassType());
}

bool FieldContainerType::isAttachment() const
{
    return isDerivedFrom(Attachment::getClassType());
}

FieldDescription *FieldContainerType::getFieldDescription(UInt32 idFrom1) const
{
    return idFrom1 >= 1 && idFrom1 <= m_descs.size() ? m_descs[idFrom1 - 1] : NULL;
}

FieldDescription *FieldContainerType::findFieldDescription(const Char8 *name) const
{
    for (FieldDescription *description : m_descs) {
        if (std::strcmp(description->getCName(), name) == 0)
            return description;
    }
    return NULL;
}

bool FieldContainerType::link()
{
    if (m_linked)
        return true;
    if (*getCParentName() != 0) {
        FieldContainerType *parent = FieldContainerFactory::the()->findType(getCParentName());
        if (!parent || !parent->link())
            return false;
        m_parent = parent;
        m_descs = parent->m_descs;
    }
    // Ids count on from the parent's.
    m_descs.insert(m_descs.end(), m_ownDescs, m_ownDescs + m_ownDescCount);
    m_linked = true;
    return true;
}

void FieldContainerType::makePrototype()
{
    if (!m_linked || !m_createPrototype || m_prototype)
        return;
    m_prototype = m_createPrototype();
    addRefCP(m_prototype);
}

} // namespace osg
