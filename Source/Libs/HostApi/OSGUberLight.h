#pragma once

#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class UberLight;
/// Handle on a light; not counted, as all of OpenSG's pointers.
typedef FCPtr<LightPtr, UberLight> UberLightPtr;

/// The host's light: one core for point, spot and directional lights.
///
/// It stands at the origin of its node and shines along the negative z axis. The colour is the
/// light's diffuse colour. On and off is the field of the base class.
class UberLight : public Light {
    typedef Light Inherited;

public:
    typedef UberLightPtr Ptr; ///< the handle, as OpenSG's templates look for it
    /// What sort of light it is; a number that is none of these is a point light.
    enum Kind { Point = 0, Spot = 1, Directional = 2 };
    ///@{
    /// The fields by number and by mask, for edit brackets and change lists.
    enum {
        KindFieldId = Inherited::NextFieldId,
        IntensityFieldId = KindFieldId + 1,
        RangeFieldId = IntensityFieldId + 1,
        InnerAngleFieldId = RangeFieldId + 1,
        OuterAngleFieldId = InnerAngleFieldId + 1,
        NextFieldId = OuterAngleFieldId + 1
    };
    static const BitVector KindFieldMask;
    static const BitVector IntensityFieldMask;
    static const BitVector RangeFieldMask;
    static const BitVector InnerAngleFieldMask;
    static const BitVector OuterAngleFieldMask;
    ///@}
    OSG_FIELD_CONTAINER_DECL(UberLightPtr)

    ///@{
    /// The fields themselves, for code that goes over the fields of any container.
    SFUInt32 *getSFKind() { return &_sfKind; }
    SFReal32 *getSFIntensity() { return &_sfIntensity; }
    SFReal32 *getSFRange() { return &_sfRange; }
    SFReal32 *getSFInnerAngle() { return &_sfInnerAngle; }
    SFReal32 *getSFOuterAngle() { return &_sfOuterAngle; }
    ///@}

    ///@{
    /// See Kind; a point light at start.
    const UInt32 &getKind() const { return _sfKind.getValue(); }
    void setKind(const UInt32 &kind) { _sfKind.setValue(kind); }
    ///@}
    ///@{
    /// Candela for point and spot lights, lux for directional ones; 1 at start.
    const Real32 &getIntensity() const { return _sfIntensity.getValue(); }
    void setIntensity(const Real32 &intensity) { _sfIntensity.setValue(intensity); }
    ///@}
    ///@{
    /// Distance beyond which the light does nothing; 0 for no limit.
    const Real32 &getRange() const { return _sfRange.getValue(); }
    void setRange(const Real32 &range) { _sfRange.setValue(range); }
    ///@}
    ///@{
    /// Half angles of a spot's cone in radians, full light within the inner one.
    const Real32 &getInnerAngle() const { return _sfInnerAngle.getValue(); }
    void setInnerAngle(const Real32 &angle) { _sfInnerAngle.setValue(angle); }
    const Real32 &getOuterAngle() const { return _sfOuterAngle.getValue(); }
    void setOuterAngle(const Real32 &angle) { _sfOuterAngle.setValue(angle); }
    ///@}

    /// Writes nothing.
    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    ///@{
    /// Instances are made by create() and copied by the factory; values go to other aspects by
    /// executeSync(). Only OpenSG calls these.
    UberLight();
    UberLight(const UberLight &other);
    ~UberLight() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

    SFUInt32 _sfKind;
    SFReal32 _sfIntensity;
    SFReal32 _sfRange;
    SFReal32 _sfInnerAngle;
    SFReal32 _sfOuterAngle;
    ///@}

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const UberLight &);
};

OSG_FIELD_CONTAINER_INL_DEF(UberLight, UberLightPtr)

OSG_END_NAMESPACE
