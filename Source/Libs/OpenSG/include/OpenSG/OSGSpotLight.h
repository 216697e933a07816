#pragma once

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSpotLightFields.h>
#include <OpenSG/OSGVec3fFields.h>

namespace osg {

/// Shines from a point into a cone.
class SpotLight : public PointLight {
    typedef PointLight Inherited;

public:
    typedef SpotLightPtr Ptr;
    enum {
        DirectionFieldId = Inherited::NextFieldId,
        SpotExponentFieldId,
        SpotCutOffFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(SpotLightPtr)

    /// The direction under its longer name.
    void setSpotDirection(const Vec3f &direction) { setDirection(direction); }
    void setSpotDirection(Real32 x, Real32 y, Real32 z) { setDirection(Vec3f(x, y, z)); }
    /// The cut-off in degrees.
    void setSpotCutOffDeg(Real32 degrees) { setSpotCutOff(osgDegree2Rad(degrees)); }
    Real32 getSpotCutOffDeg() const { return osgRad2Degree(getSpotCutOff()); }

    /// Along the axis of the cone, away from the light, in the beacon's coordinates.
    OSG_SF_INIT(SFVec3f, Direction, 0, 0, 1)
    /// How fast the light fades towards the edge of the cone.
    OSG_SF_INIT(SFReal32, SpotExponent, 0)
    /// Half the opening angle of the cone, in radians.
    OSG_SF_INIT(SFReal32, SpotCutOff, 0)

protected:
    SpotLight() = default;
    SpotLight(const SpotLight &) = default;

    OSG_CONTAINER_STATICS
};

typedef SpotLight SpotLightBase;
typedef RefPtr<SpotLightPtr> SpotLightRefPtr;
typedef CoredNodePtr<SpotLight> SpotLightNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(SpotLight, SpotLightPtr)

} // namespace osg
