#pragma once

#include <OpenSG/OSGNode.h>

/// The host's handle on a scene node: an OpenSG node pointer that also knows the identifier under
/// which remote requests address the node.
class qxNodePtr : public osg::NodePtr {
public:
    ///@{
    /// A handle on the node; null by default. It does not keep the node alive.
    qxNodePtr() {}
    qxNodePtr(const osg::NodePtr &node) : osg::NodePtr(node) {}
    qxNodePtr(const osg::NullFieldContainerPtr &null) : osg::NodePtr(null) {}
    ///@}

    /// The identifier of the node within this process, 0 for a null handle.
    unsigned int getID() const { return *this == osg::NullFC ? 0 : getFieldContainerId(); }
};
