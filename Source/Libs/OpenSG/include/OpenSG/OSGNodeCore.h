#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodeCoreFields.h>
#include <OpenSG/OSGNodeFields.h>

namespace osg {

class Volume;

/// What stands at a node, or at several. Knows these nodes: every living node that has the core, in
/// a scene or not, in the order of the setCore() calls.
class NodeCore : public AttachmentContainer {
    typedef AttachmentContainer Inherited;

public:
    enum { ParentsFieldId = Inherited::NextFieldId, NextFieldId };
    /// Distinguishes cores at compile time.
    static constexpr bool isNodeCore = true;

    OSG_ABSTR_FIELD_CONTAINER_DECL(NodeCorePtr)

    /// Marks the volumes of all parents as out of date.
    void invalidateVolume();

    /// Multiplies \a result by what the core does to the coordinates of its subtree.
    virtual void accumulateMatrix(Matrix &result);
    /// Turns the volume of the children into that of the node.
    virtual void adjustVolume(Volume &volume);

    /// The nodes with this core; kept by Node::setCore().
    OSG_MF(MFNodePtr, Parents)

protected:
    NodeCore() = default;
    /// The copy has no parents yet.
    NodeCore(const NodeCore &other) : AttachmentContainer(other), _mfParents() {}

    OSG_CONTAINER_STATICS
};

typedef NodeCore NodeCoreBase;

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(NodeCore, NodeCorePtr)

} // namespace osg
