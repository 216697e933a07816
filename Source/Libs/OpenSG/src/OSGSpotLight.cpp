#include <OpenSG/OSGSpotLight.h>

namespace osg {

OSG_FIELD_MASK(SpotLight, Direction)
OSG_FIELD_MASK(SpotLight, SpotExponent)
OSG_FIELD_MASK(SpotLight, SpotCutOff)

FieldDescription *SpotLight::_desc[] = {OSG_SF_DESC(SpotLight, Direction, "direction", false),
                                        OSG_SF_DESC(SpotLight, SpotExponent, "spotExponent", false),
                                        OSG_SF_DESC(SpotLight, SpotCutOff, "spotCutOff", false)};

FieldContainerType SpotLight::_type(
    "SpotLight", "PointLight", NULL, [] { return FieldContainerPtr(SpotLight::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SpotLight, SpotLightPtr)

} // namespace osg
