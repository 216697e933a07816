#include <OpenSG/OSGNodePtr.h>

#include <OpenSG/OSGNodeCore.h>

namespace osg {

NodePtr makeNodeFor(NodeCorePtr core)
{
    if (!core)
        return NullFC;
    const NodePtr node = Node::create();
    node->setCore(core);
    return node;
}

} // namespace osg
