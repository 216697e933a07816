#include <OpenSG/OSGNode.h>

#include <OpenSG/OSGNodeCore.h>

#include "OSGWarning.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace osg {

OSG_FIELD_MASK(Node, Volume)
OSG_FIELD_MASK(Node, TravMask)
OSG_FIELD_MASK(Node, Parent)
OSG_FIELD_MASK(Node, Children)
OSG_FIELD_MASK(Node, Core)

FieldDescription *Node::_desc[] = {
    OSG_SF_DESC(Node, Volume, "volume", true), OSG_SF_DESC(Node, TravMask, "travMask", false),
    OSG_SF_DESC(Node, Parent, "parent", true), OSG_MF_DESC(Node, Children, "children", false),
    OSG_SF_DESC(Node, Core, "core", false)};

FieldContainerType Node::_type(
    "Node", "AttachmentContainer", NULL, [] { return FieldContainerPtr(Node::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Node, NodePtr)

NodePtr::NodePtr(const Node *object) : FCPtr(object) {}

NodePtr::NodePtr(const Node &object) : FCPtr(object) {}

NodeCore *NodePtr::getCore() const
{
    return (*this)->getCore().getCPtr();
}

Node::Node(const Node &other)
    : AttachmentContainer(other), _sfVolume(other._sfVolume), _sfTravMask(other._sfTravMask)
{
    setCore(other.getCore());
}

Node::~Node()
{
    leaveCore();
    // Descendants that end with this node end one after the other, not one inside the other: a
    // chain of nodes may be of any length.
    std::vector<NodePtr> open(_mfChildren.rbegin(), _mfChildren.rend());
    _mfChildren.clear();
    while (!open.empty()) {
        const NodePtr child = open.back();
        open.pop_back();
        child->setParent(NullFC);
        if (child.getRefCount() == 1) {
            MFNodePtr &below = child->_mfChildren;
            open.insert(open.end(), below.rbegin(), below.rend());
            below.clear();
        }
        subRefCP(child);
    }
}

void Node::setCore(const NodeCorePtr &core)
{
    // First the new reference: the old core may be all that keeps the new one.
    const NodeCorePtr added = core;
    addRefCP(added);
    leaveCore();
    enterCore(added);
    invalidateVolume();
}

void Node::enterCore(const NodeCorePtr &core)
{
    _sfCore.setValue(core);
    if (!core)
        return;
    core->getParents().push_back(NodePtr(this));
    endEditCP(core, NodeCore::ParentsFieldMask);
}

void Node::leaveCore()
{
    const NodeCorePtr core = getCore();
    if (!core)
        return;
    // Out of the core's list before the release, which may destroy the core.
    _sfCore.setValue(NullFC);
    MFNodePtr &parents = core->getParents();
    // The last ones first: of the very many nodes that may share a core, those of a scene file end
    // in the opposite order.
    const auto found = std::find(parents.rbegin(), parents.rend(), NodePtr(this));
    if (found != parents.rend())
        parents.erase(std::prev(found.base()));
    endEditCP(core, NodeCore::ParentsFieldMask);
    subRefCP(core);
}

void Node::setParent(const NodePtr &parent)
{
    _sfParent.setValue(parent);
    endEditCP(NodePtr(this), ParentFieldMask);
}

Int32 Node::findChild(const NodePtr &child) const
{
    const auto found = _mfChildren.find(child);
    return found == _mfChildren.end() ? -1 : Int32(found - _mfChildren.begin());
}

void Node::adopt(const NodePtr &child)
{
    addRefCP(child);
    const NodePtr oldParent = child->getParent();
    if (!oldParent)
        return;
    // The reference taken above keeps the child alive meanwhile.
    oldParent->subChild(child);
    endEditCP(oldParent, ChildrenFieldMask);
}

void Node::addChild(const NodePtr &child)
{
    insertChild(getNChildren(), child);
}

void Node::insertChild(UInt32 index, const NodePtr &child)
{
    if (!child)
        return;
    if (index > getNChildren())
        fail("Node::insertChild: beyond the last child");
    const NodePtr added = child;
    adopt(added);
    const UInt32 place = std::min(index, getNChildren());
    _mfChildren.insert(_mfChildren.begin() + place, added);
    added->setParent(NodePtr(this));
    invalidateVolume();
}

void Node::replaceChild(UInt32 index, const NodePtr &child)
{
    const NodePtr removed = getChild(index);
    const NodePtr added = child;
    if (!added || !removed || added == removed)
        return;
    adopt(added);
    // By pointer: the place has moved when the new child came from this list.
    *_mfChildren.find(removed) = added;
    added->setParent(NodePtr(this));
    removed->setParent(NullFC);
    subRefCP(removed);
    invalidateVolume();
}

bool Node::replaceChildBy(const NodePtr &oldChild, const NodePtr &newChild)
{
    const Int32 index = findChild(oldChild);
    if (index < 0 || !newChild)
        return false;
    replaceChild(UInt32(index), newChild);
    return true;
}

void Node::subChild(const NodePtr &child)
{
    const Int32 index = findChild(child);
    if (index < 0)
        warn("Node::subChild: not a child of this node");
    else
        releaseChildAt(UInt32(index), child);
}

void Node::subChild(UInt32 index)
{
    if (index >= getNChildren())
        fail("Node::subChild: there is no child at this index");
    releaseChildAt(index, getChild(index));
}

void Node::releaseChildAt(UInt32 index, const NodePtr &child)
{
    const NodePtr removed = child;
    // A reference into the list does not survive the removal.
    const NodePtr *children = &_mfChildren[0];
    const bool isInList = !std::less<const NodePtr *>()(&child, children)
        && std::less<const NodePtr *>()(&child, children + getNChildren());
    _mfChildren.erase(_mfChildren.begin() + index);
    removed->setParent(NullFC);
    invalidateVolume();
    subRefCP(isInList ? removed : child);
}

void Node::setActive(bool active)
{
    setTravMask(active ? TypeTraits<UInt32>::BitsSet : TypeTraits<UInt32>::BitsClear);
}

NodePtr Node::clone()
{
    const NodePtr copy = Node::create();
    copy->setTravMask(getTravMask());
    copy->setCore(getCore());
    return copy;
}

Matrix Node::getToWorld()
{
    Matrix result;
    getToWorld(result);
    return result;
}

void Node::getToWorld(Matrix &result)
{
    if (getParent())
        getParent()->getToWorld(result);
    else
        result.setIdentity();
    if (getCore())
        getCore()->accumulateMatrix(result);
}

DynamicVolume &Node::getVolume(bool update)
{
    if (update)
        updateVolume();
    return _sfVolume.getValue();
}

void Node::updateVolume()
{
    DynamicVolume &volume = _sfVolume.getValue();
    if (volume.isValid())
        return;
    volume.setEmpty();
    for (const NodePtr &child : _mfChildren) {
        // What is hidden takes no room.
        if (child->getTravMask() != 0)
            volume.extendBy(child->getVolume(true));
    }
    if (getCore())
        getCore()->adjustVolume(volume);
    volume.setValid();
}

void Node::invalidateVolume()
{
    // A node's volume is valid only when those of all visible nodes below are.
    for (NodePtr node(this); node && node->getVolume(false).isValid(); node = node->getParent())
        node->getVolume(false).setValid(false);
}

void Node::changed(BitVector whichField, UInt32 origin)
{
    if ((whichField & TravMaskFieldMask) && getParent()) {
        getParent()->invalidateVolume();
        // Whoever watches the parent learns that its extent may have changed.
        endEditCP(getParent(), VolumeFieldMask, ChangedOrigin::Child);
    }
    Inherited::changed(whichField, origin);
}

void Node::dump(UInt32 indent, const BitVector flags) const
{
    Inherited::dump(indent, flags);
    if (getCore())
        getCore()->dump(indent + 4, flags);
    for (const NodePtr &child : _mfChildren)
        child->dump(indent + 4, flags);
}

} // namespace osg
