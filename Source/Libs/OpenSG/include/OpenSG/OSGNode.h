#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGDynamicVolumeFields.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>
#include <OpenSG/OSGUInt32Fields.h>

#include <cassert>

namespace osg {

/// A place in the scene: children, a traversal mask, and a core that says what is there. Cores may
/// be shared by many nodes, nodes have one parent. Nothing prevents cycles.
class Node : public AttachmentContainer {
    typedef AttachmentContainer Inherited;

public:
    typedef NodePtr Ptr;
    enum {
        VolumeFieldId = Inherited::NextFieldId,
        TravMaskFieldId,
        ParentFieldId,
        ChildrenFieldId,
        CoreFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(NodePtr)

    NodeCorePtr getCore() const { return _sfCore.getValue(); }
    /// References the new core, then releases the old one. This node becomes the last of the core's
    /// parents, also when it had the core before.
    void setCore(const NodeCorePtr &core);

    NodePtr getParent() { return _sfParent.getValue(); }
    /// Number of children.
    UInt32 getNChildren() const { return UInt32(_mfChildren.size()); }
    NodePtr getChild(UInt32 index)
    {
        assert(index < getNChildren());
        return index < getNChildren() ? _mfChildren[index] : NodePtr();
    }
    /// -1 when absent.
    Int32 findChild(const NodePtr &child) const;

    /// \name Children
    /// Children are referenced. A node with a parent is taken out there first. Null is ignored.
    /// Removed children lose their parent and are released, which destroys those nobody else holds
    /// with all below them; the variable handed in is null then.
    /// @{
    void addChild(const NodePtr &child);
    void insertChild(UInt32 index, const NodePtr &child);
    void replaceChild(UInt32 index, const NodePtr &child);
    /// False when \a oldChild is no child or \a newChild is null.
    bool replaceChildBy(const NodePtr &oldChild, const NodePtr &newChild);
    /// Only warns when \a child is no child.
    void subChild(const NodePtr &child);
    void subChild(UInt32 index);
    /// @}

    /// Whether all bits of the traversal mask are set; setActive() sets all or none.
    bool getActive() const { return getTravMask() == TypeTraits<UInt32>::BitsSet; }
    void setActive(bool active);

    /// A node with the same core and mask, without name, parent and children.
    NodePtr clone();

    /// The product of the matrices from the root down to this node's own core.
    Matrix getToWorld();
    void getToWorld(Matrix &result);

    /// The box around all that is visible below, in the coordinates of the parent. The const form
    /// gives it as it was last computed.
    DynamicVolume &getVolume(bool update);
    const DynamicVolume &getVolume() const { return _sfVolume.getValue(); }
    void updateVolume();
    /// Marks the volumes from here up to the root as out of date.
    void invalidateVolume();

    /// The fields themselves.
    SFDynamicVolume *getSFVolume() { return &_sfVolume; }
    MFNodePtr *getMFChildren() { return &_mfChildren; }
    SFNodePtr *getSFParent() { return &_sfParent; }
    SFNodeCorePtr *getSFCore() { return &_sfCore; }
    static const BitVector VolumeFieldMask;
    static const BitVector ParentFieldMask;
    static const BitVector ChildrenFieldMask;
    static const BitVector CoreFieldMask;

    /// Which traversals see the node; all ones at first.
    static const BitVector TravMaskFieldMask;
    SFUInt32 *getSFTravMask() { return &_sfTravMask; }
    UInt32 getTravMask() const { return _sfTravMask.getValue(); }
    void setTravMask(UInt32 mask) { _sfTravMask.setValue(mask); }

    void changed(BitVector whichField, UInt32 origin) override;
    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

protected:
    Node() = default;
    /// The copy shares core and attachments, all referenced; it has no parent and no children.
    Node(const Node &other);
    ~Node() override;

private:
    void enterCore(const NodeCorePtr &core);
    void leaveCore();
    void setParent(const NodePtr &parent);
    /// References a new child and takes it out of its old place.
    void adopt(const NodePtr &child);
    void releaseChildAt(UInt32 index, const NodePtr &child);

    SFDynamicVolume _sfVolume;
    SFUInt32 _sfTravMask{TypeTraits<UInt32>::BitsSet};
    SFNodePtr _sfParent;
    MFNodePtr _mfChildren;
    SFNodeCorePtr _sfCore;

    OSG_CONTAINER_STATICS
};

typedef Node NodeBase;

OSG_FIELD_CONTAINER_INL_DEF(Node, NodePtr)

/// Copies of a tree that share the cores and copy the masks; names and other attachments are lost.
NodePtr cloneTree(const NodePtr &root);
/// Copies of a tree with everything in it: cores, names, attachments. Objects of the types named in
/// \a shareTypes (separated by commas or spaces; derived ones too) are shared instead.
NodePtr deepCloneTree(const NodePtr &root, const std::string &shareTypes = "");
/// A copy of one object and of all that it contains, with the same exception for contained objects.
FieldContainerPtr deepClone(const FieldContainerPtr &object, const std::string &shareTypes = "");

} // namespace osg
