#pragma once

#include <OpenSG/OSGNodePtr.h>

namespace osg {

/// A node and its core of a known class in one; holds references to both.
template <class Core>
class CoredNodePtr {
public:
    typedef typename Core::Ptr CorePtr;
    typedef FieldContainerPtrBase::unspecified_bool_type unspecified_bool_type;

    CoredNodePtr() = default;
    CoredNodePtr(const NullFieldContainerPtr &) {}
    /// The node with its core, as by assignment.
    explicit CoredNodePtr(const NodePtr &node) { *this = node; }
    CoredNodePtr(const CoredNodePtr &) = default;

    /// A new node with a new core.
    static CoredNodePtr create() { return CoredNodePtr(makeCoredNode<Core>()); }

    /// Null when the node has no core of this class.
    void operator=(const NodePtr &node)
    {
        m_node = node;
        m_core = node ? CorePtr::dcast(node->getCore()) : CorePtr();
        if (!m_core)
            m_node = NullFC;
    }
    void operator=(const CoredNodePtr &other) { *this = other.node(); }
    void operator=(const NullFieldContainerPtr &) { *this = NodePtr(); }

    /// The two parts; where a node is asked for, it stands for the node.
    NodePtr node() const { return m_node.get(); }
    CorePtr core() const { return m_core.get(); }
    operator NodePtr() const { return node(); }
    /// The core.
    Core *operator->() const { return m_core.operator->(); }
    Core &operator*() const { return *m_core; }

    /// Tests for null; comparisons are those of the nodes.
    bool operator!() const { return !m_node; }
    operator unspecified_bool_type() const { return m_node; }
    bool operator==(const FieldContainerPtrBase &other) const { return m_node == other; }
    bool operator!=(const FieldContainerPtrBase &other) const { return m_node != other; }
    bool operator==(const CoredNodePtr &other) const { return m_node == other.m_node; }
    bool operator!=(const CoredNodePtr &other) const { return m_node != other.m_node; }

private:
    NodeRefPtr m_node;
    RefPtr<CorePtr> m_core;
};

} // namespace osg
