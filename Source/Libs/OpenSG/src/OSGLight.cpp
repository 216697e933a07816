#include <OpenSG/OSGLight.h>

namespace osg {

OSG_FIELD_MASK(Light, Ambient)
OSG_FIELD_MASK(Light, Diffuse)
OSG_FIELD_MASK(Light, Specular)
OSG_FIELD_MASK(Light, Beacon)
OSG_FIELD_MASK(Light, On)
OSG_FIELD_MASK(Light, ConstantAttenuation)
OSG_FIELD_MASK(Light, LinearAttenuation)
OSG_FIELD_MASK(Light, QuadraticAttenuation)
OSG_FIELD_MASK(Light, ShadowIntensity)
OSG_FIELD_MASK(Light, ShadowMode)

FieldDescription *Light::_desc[] = {
    OSG_SF_DESC(Light, Ambient, "ambient", false),
    OSG_SF_DESC(Light, Diffuse, "diffuse", false),
    OSG_SF_DESC(Light, Specular, "specular", false),
    OSG_SF_DESC(Light, Beacon, "beacon", false),
    OSG_SF_DESC(Light, On, "on", false),
    OSG_SF_DESC(Light, ConstantAttenuation, "constantAttenuation", false),
    OSG_SF_DESC(Light, LinearAttenuation, "linearAttenuation", false),
    OSG_SF_DESC(Light, QuadraticAttenuation, "quadraticAttenuation", false),
    OSG_SF_DESC(Light, ShadowIntensity, "shadowIntensity", false),
    OSG_SF_DESC(Light, ShadowMode, "shadowMode", false)};

FieldContainerType Light::_type("Light", "Group", NULL, NULL, NULL, _desc, sizeof(_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(Light, LightPtr)

} // namespace osg
