#include <OpenSG/OSGDirectionalLight.h>

namespace osg {

OSG_FIELD_MASK(DirectionalLight, Direction)

FieldDescription *DirectionalLight::_desc[] = {
    OSG_SF_DESC(DirectionalLight, Direction, "direction", false)};

FieldContainerType DirectionalLight::_type(
    "DirectionalLight", "Light", NULL,
    [] { return FieldContainerPtr(DirectionalLight::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(DirectionalLight, DirectionalLightPtr)

} // namespace osg
