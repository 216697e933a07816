#include <OpenSG/OSGPointLight.h>

namespace osg {

OSG_FIELD_MASK(PointLight, Position)

FieldDescription *PointLight::_desc[] = {OSG_SF_DESC(PointLight, Position, "position", false)};

FieldContainerType PointLight::_type(
    "PointLight", "Light", NULL, [] { return FieldContainerPtr(PointLight::createEmpty()); }, NULL,
    _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(PointLight, PointLightPtr)

void PointLight::setAttenuation(Real32 constant, Real32 linear, Real32 quadratic)
{
    setConstantAttenuation(constant);
    setLinearAttenuation(linear);
    setQuadraticAttenuation(quadratic);
}

} // namespace osg
