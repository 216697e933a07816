#pragma once

#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGPnt3fFields.h>
#include <OpenSG/OSGPointLightFields.h>

namespace osg {

/// Shines from a point in all directions.
class PointLight : public Light {
    typedef Light Inherited;

public:
    typedef PointLightPtr Ptr;
    enum { PositionFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(PointLightPtr)

    /// The position coordinate by coordinate.
    void setPosition(Real32 x, Real32 y, Real32 z) { setPosition(Pnt3f(x, y, z)); }
    /// The three attenuations at once.
    void setAttenuation(Real32 constant, Real32 linear, Real32 quadratic);

    /// In the beacon's coordinates.
    OSG_SF(SFPnt3f, Position)

protected:
    PointLight() = default;
    PointLight(const PointLight &) = default;

    OSG_CONTAINER_STATICS
};

typedef PointLight PointLightBase;
typedef RefPtr<PointLightPtr> PointLightRefPtr;
typedef CoredNodePtr<PointLight> PointLightNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(PointLight, PointLightPtr)

} // namespace osg
