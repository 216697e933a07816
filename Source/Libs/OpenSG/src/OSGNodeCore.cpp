#include <OpenSG/OSGNodeCore.h>

#include <OpenSG/OSGNode.h>

namespace osg {

OSG_FIELD_MASK(NodeCore, Parents)

FieldDescription *NodeCore::_desc[] = {OSG_MF_DESC(NodeCore, Parents, "parents", true)};

FieldContainerType NodeCore::_type("NodeCore", "AttachmentContainer", NULL, NULL, NULL, _desc,
                                   sizeof(_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(NodeCore, NodeCorePtr)

void NodeCore::invalidateVolume()
{
    for (const NodePtr &parent : _mfParents)
        parent->invalidateVolume();
}

void NodeCore::accumulateMatrix(Matrix &) {}

void NodeCore::adjustVolume(Volume &) {}

} // namespace osg
