#pragma once

#include <OpenSG/OSGDirectionalLightFields.h>
#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGVec3fFields.h>

namespace osg {

/// Shines from infinitely far away.
class DirectionalLight : public Light {
    typedef Light Inherited;

public:
    typedef DirectionalLightPtr Ptr;
    enum { DirectionFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(DirectionalLightPtr)

    /// The direction coordinate by coordinate.
    void setDirection(Real32 x, Real32 y, Real32 z) { setDirection(Vec3f(x, y, z)); }

    /// Points towards the light, in the beacon's coordinates.
    OSG_SF_INIT(SFVec3f, Direction, 0, 0, 1)

protected:
    DirectionalLight() = default;
    DirectionalLight(const DirectionalLight &) = default;

    OSG_CONTAINER_STATICS
};

typedef DirectionalLight DirectionalLightBase;
typedef RefPtr<DirectionalLightPtr> DirectionalLightRefPtr;
typedef CoredNodePtr<DirectionalLight> DirectionalLightNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(DirectionalLight, DirectionalLightPtr)

} // namespace osg
