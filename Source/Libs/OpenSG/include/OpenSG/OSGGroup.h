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

typedef Group GroupBase;
typedef RefPtr<GroupPtr> GroupRefPtr;
typedef CoredNodePtr<Group> GroupNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(Group, GroupPtr)

} // namespace osg
