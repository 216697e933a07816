#pragma once

/// \file
/// Node by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGAttachmentContainerFields.h>

namespace osg {

class Node;
class NodeCore;

/// Pointer to a node.
class NodePtr : public FCPtr<AttachmentContainerPtr, Node> {
public:
    constexpr NodePtr() = default;
    constexpr NodePtr(const NodePtr &) = default;
    NodePtr(const NullFieldContainerPtr &) {}
    explicit NodePtr(const Node *object);
    explicit NodePtr(const Node &object);
    void operator=(const NodePtr &other) { FCPtr::operator=(other); }
    void operator=(const NullFieldContainerPtr &) { m_object = nullptr; }

    /// The node's core as raw pointer; `node->getCore()` gives it as NodeCorePtr.
    NodeCore *getCore() const;

    /// Null when \a in is null or points to something else.
    template <class In>
    static NodePtr dcast(const In in)
    {
        NodePtr result;
        result.FCPtr::operator=(FCPtr::dcast(in));
        return result;
    }
};

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(NodePtr, NodePtr)

} // namespace osg
