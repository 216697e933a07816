#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

namespace osg {

typedef RefPtr<NodePtr> NodeRefPtr;
typedef RefPtr<NodeCorePtr> NodeCoreRefPtr;

/// A new node with this core; null for a null core.
NodePtr makeNodeFor(NodeCorePtr core);

/// A new node with a new core, which is stored in \a core when that is given.
template <class Core>
NodePtr makeCoredNode(typename Core::Ptr *core = NULL)
{
    const typename Core::Ptr newCore = Core::create();
    if (core)
        *core = newCore;
    return makeNodeFor(newCore);
}

} // namespace osg
