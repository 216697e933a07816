#pragma once

#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGGroupFields.h>
#include <OpenSG/OSGNodeCore.h>

namespace osg {

/// A core that does nothing but hold its node's children together.
class Group : public NodeCore {
    typedef NodeCore Inherited;

public:
    typedef GroupPtr Ptr;

    OSG_FIELD_CONTAINER_DECL(GroupPtr)

protected:
    Group() = default;
    Group(const Group &) = default;

private:
    friend class FieldContainer;
    static FieldContainerType _type;
};

/// The name that field masks are known under as well.
typedef Group GroupBase;
/// Holds a reference; holds a node and its core.
typedef RefPtr<GroupPtr> GroupRefPtr;
typedef CoredNodePtr<Group> GroupNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(Group, GroupPtr)

} // namespace osg
