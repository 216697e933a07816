#include <OpenSG/OSGGroup.h>

namespace osg {

FieldContainerType Group::_type("Group", "NodeCore", NULL,
                                [] { return FieldContainerPtr(Group::createEmpty()); });

OSG_FIELD_CONTAINER_DEF(Group, GroupPtr)

} // namespace osg
