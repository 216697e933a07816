#include <OpenSG/OSGSwitch.h>

namespace osg {

OSG_FIELD_MASK(Switch, Choice)

FieldDescription *Switch::_desc[] = {OSG_SF_DESC(Switch, Choice, "choice", false)};

FieldContainerType Switch::_type(
    "Switch", "Group", NULL, [] { return FieldContainerPtr(Switch::createEmpty()); }, NULL, _desc,
    sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Switch, SwitchPtr)

} // namespace osg
