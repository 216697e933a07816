#include <OpenSG/OSGFieldContainerFactory.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

#include "OSGWarning.h"

#include <algorithm>

namespace osg {

FieldContainerFactory *FieldContainerFactory::the()
{
    static FieldContainerFactory factory;
    return &factory;
}

FieldContainerFactory::FieldContainerFactory()
{
    // The last container that goes still uses the change list, so that has to be there before.
    Thread::getCurrentChangeList();
}

bool FieldContainerFactory::initializePendingTypes()
{
    m_started = true;
    // First all parents and fields, then objects: a prototype may be of any type.
    bool complete = true;
    for (FieldContainerType *type : m_types)
        complete = type->link() && complete;
    for (size_t i = 0; i < m_types.size() && !m_terminated; ++i)
        m_types[i]->makePrototype();
    return complete;
}

FieldContainerPtr FieldContainerFactory::getContainer(UInt32 id) const
{
    const UInt32 page = id / Page::Size;
    if (page >= m_pages.size() || !m_pages[page])
        return NullFC;
    return FieldContainerPtr(m_pages[page]->containers[id % Page::Size]);
}

FieldContainerType *FieldContainerFactory::findType(const Char8 *name) const
{
    const auto found = m_typesByName.find(name);
    return found == m_typesByName.end() ? NULL : found->second;
}

FieldContainerPtr FieldContainerFactory::createFieldContainer(const Char8 *typeName) const
{
    const FieldContainerType *type = findType(typeName);
    if (!type || !type->getPrototype())
        return NullFC;
    return type->getPrototype()->shallowCopy();
}

template <class PtrT>
static PtrT createOfKind(const FieldContainerFactory &factory, const Char8 *typeName)
{
    const FieldContainerType *type = factory.findType(typeName);
    if (!type || !type->isDerivedFrom(PtrT::ObjectType::getClassType()))
        return NullFC;
    return PtrT::dcast(factory.createFieldContainer(typeName));
}

NodePtr FieldContainerFactory::createNode(const Char8 *typeName) const
{
    return createOfKind<NodePtr>(*this, typeName);
}

NodeCorePtr FieldContainerFactory::createNodeCore(const Char8 *typeName) const
{
    return createOfKind<NodeCorePtr>(*this, typeName);
}

AttachmentPtr FieldContainerFactory::createAttachment(const Char8 *typeName) const
{
    return createOfKind<AttachmentPtr>(*this, typeName);
}

void FieldContainerFactory::registerType(FieldContainerType *type)
{
    m_types.push_back(type);
    if (!m_typesByName.emplace(type->getCName(), type).second)
        fail(std::string("there are two types with the name ") + type->getCName());
}

void FieldContainerFactory::unregisterType(FieldContainerType *type)
{
    m_types.erase(std::find(m_types.begin(), m_types.end(), type));
    m_typesByName.erase(type->getCName());
}

UInt16 FieldContainerFactory::registerGroup(const Char8 *name)
{
    return m_groups.emplace(name, UInt16(m_groups.size() + 1)).first->second;
}

UInt32 FieldContainerFactory::registerContainer(FieldContainer *container)
{
    if (!m_started)
        fail("a container is made before osgInit()");
    const UInt32 id = m_nextId++;
    const UInt32 page = id / Page::Size;
    if (page >= m_pages.size())
        m_pages.resize(page + 1);
    if (!m_pages[page])
        m_pages[page] = std::make_unique<Page>();
    m_pages[page]->containers[id % Page::Size] = container;
    ++m_pages[page]->used;
    return id;
}

void FieldContainerFactory::unregisterContainer(UInt32 id)
{
    std::unique_ptr<Page> &page = m_pages[id / Page::Size];
    page->containers[id % Page::Size] = nullptr;
    // Ids are not used again, so an empty page never fills up.
    if (--page->used == 0)
        page.reset();
}

void FieldContainerFactory::terminate()
{
    m_terminated = true;
    for (FieldContainerType *type : m_types)
        type->dropPrototype();
}

} // namespace osg
