#include <OpenSG/OSGGraphOpFactory.h>

#include <OpenSG/OSGGraphOp.h>

namespace osg {

GraphOpFactory &GraphOpFactory::the()
{
    static GraphOpFactory factory;
    return factory;
}

void GraphOpFactory::registerOp(GraphOp *prototype)
{
    m_prototypes[prototype->getName()] = prototype;
}

void GraphOpFactory::unRegisterOp(GraphOp *prototype)
{
    for (auto it = m_prototypes.begin(); it != m_prototypes.end();)
        it = it->second == prototype ? m_prototypes.erase(it) : std::next(it);
}

void GraphOpFactory::unRegisterOp(const char *name)
{
    m_prototypes.erase(name);
}

GraphOp *GraphOpFactory::create(const char *name)
{
    const auto found = m_prototypes.find(name);
    return found == m_prototypes.end() ? NULL : found->second->create();
}

} // namespace osg
