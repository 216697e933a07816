#include "Internal/Scene/qxOpenNodes.h"

#include <OpenSG/OSGFieldContainerFactory.h>

qxOpenNodes::qxOpenNodes(const osg::NodePtr &top)
    : m_top(top == osg::NullFC ? 0 : top.getFieldContainerId()), m_open{m_top}
{
}

osg::NodePtr qxOpenNodes::withId(osg::UInt32 id)
{
    const osg::FieldContainerPtr object = osg::FieldContainerFactory::the()->getContainer(id);
    return object == osg::NullFC ? osg::NodePtr() : osg::NodePtr::dcast(object);
}

osg::NodePtr qxOpenNodes::take()
{
    while (!m_open.empty()) {
        const osg::NodePtr node = withId(m_open.back());
        m_open.pop_back();
        if (node != osg::NullFC && isInPlace(node))
            return node;
    }
    return osg::NodePtr();
}

void qxOpenNodes::addChildrenOf(const osg::NodePtr &node)
{
    if (!isInPlace(node))
        return;
    for (osg::UInt32 i = node->getNChildren(); i > 0; --i) {
        const osg::NodePtr child = node->getChild(i - 1);
        if (child != osg::NullFC)
            m_open.push_back(child.getFieldContainerId());
    }
}

bool qxOpenNodes::isInPlace(const osg::NodePtr &node) const
{
    return node.getFieldContainerId() == m_top || node->getParent() != osg::NullFC;
}
