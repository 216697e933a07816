#pragma once

#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGColor4fFields.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLightFields.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGUInt32Fields.h>

namespace osg {

/// Base of the lights. Lights only its own subtree; position and direction are in the coordinates
/// of the beacon, which is not referenced.
class Light : public Group {
    typedef Group Inherited;

public:
    typedef LightPtr Ptr;
    enum {
        AmbientFieldId = Inherited::NextFieldId,
        DiffuseFieldId,
        SpecularFieldId,
        BeaconFieldId,
        OnFieldId,
        ConstantAttenuationFieldId,
        LinearAttenuationFieldId,
        QuadraticAttenuationFieldId,
        ShadowIntensityFieldId,
        ShadowModeFieldId,
        NextFieldId
    };

    OSG_ABSTR_FIELD_CONTAINER_DECL(LightPtr)

    /// The colours channel by channel.
    void setAmbient(Real32 r, Real32 g, Real32 b, Real32 a) { setAmbient(Color4f(r, g, b, a)); }
    void setDiffuse(Real32 r, Real32 g, Real32 b, Real32 a) { setDiffuse(Color4f(r, g, b, a)); }
    void setSpecular(Real32 r, Real32 g, Real32 b, Real32 a) { setSpecular(Color4f(r, g, b, a)); }

    /// What surfaces get that the light does not reach.
    OSG_SF_INIT(SFColor4f, Ambient, 0, 0, 0, 1)
    /// What matt surfaces scatter.
    OSG_SF_INIT(SFColor4f, Diffuse, 1, 1, 1, 1)
    /// What shiny surfaces reflect.
    OSG_SF_INIT(SFColor4f, Specular, 1, 1, 1, 1)
    /// The node whose coordinates the light is placed in.
    OSG_SF(SFNodePtr, Beacon)
    /// A light that is off adds nothing.
    OSG_SF_INIT(SFBool, On, true)
    /// Intensity falls by 1 / (constant + linear * distance + quadratic * distance squared).
    OSG_SF_INIT(SFReal32, ConstantAttenuation, 1)
    OSG_SF_INIT(SFReal32, LinearAttenuation, 0)
    OSG_SF_INIT(SFReal32, QuadraticAttenuation, 0)
    /// 0: no shadow, 1: black.
    OSG_SF_INIT(SFReal32, ShadowIntensity, 0)
    /// How a renderer makes the shadow; 0 leaves it to the renderer.
    OSG_SF_INIT(SFUInt32, ShadowMode, 0)

protected:
    Light() = default;
    Light(const Light &) = default;

    OSG_CONTAINER_STATICS
};

typedef Light LightBase;
typedef RefPtr<LightPtr> LightRefPtr;

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(Light, LightPtr)

} // namespace osg
