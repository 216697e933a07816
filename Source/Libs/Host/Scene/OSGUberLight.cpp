#include "OSGUberLight.h"

OSG_BEGIN_NAMESPACE

const BitVector UberLight::KindFieldMask = TypeTraits<BitVector>::One << UberLight::KindFieldId;
const BitVector UberLight::IntensityFieldMask = TypeTraits<BitVector>::One
    << UberLight::IntensityFieldId;
const BitVector UberLight::RangeFieldMask = TypeTraits<BitVector>::One << UberLight::RangeFieldId;
const BitVector UberLight::InnerAngleFieldMask = TypeTraits<BitVector>::One
    << UberLight::InnerAngleFieldId;
const BitVector UberLight::OuterAngleFieldMask = TypeTraits<BitVector>::One
    << UberLight::OuterAngleFieldId;

FieldDescription *UberLight::_desc[] = {
    new FieldDescription(SFUInt32::getClassType(), "kind", KindFieldId, KindFieldMask, false,
                         (FieldAccessMethod)&UberLight::getSFKind),
    new FieldDescription(SFReal32::getClassType(), "intensity", IntensityFieldId,
                         IntensityFieldMask, false, (FieldAccessMethod)&UberLight::getSFIntensity),
    new FieldDescription(SFReal32::getClassType(), "range", RangeFieldId, RangeFieldMask, false,
                         (FieldAccessMethod)&UberLight::getSFRange),
    new FieldDescription(SFReal32::getClassType(), "innerAngle", InnerAngleFieldId,
                         InnerAngleFieldMask, false,
                         (FieldAccessMethod)&UberLight::getSFInnerAngle),
    new FieldDescription(SFReal32::getClassType(), "outerAngle", OuterAngleFieldId,
                         OuterAngleFieldMask, false,
                         (FieldAccessMethod)&UberLight::getSFOuterAngle)};

FieldContainerType UberLight::_type(
    "UberLight", "Light", NULL, [] { return FieldContainerPtr(UberLight::createEmpty()); }, NULL,
    _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(UberLight, UberLightPtr)

// The angles are those of a spot light that states none: a quarter turn, soft from the middle on.
UberLight::UberLight()
    : Inherited(), _sfKind(Point), _sfIntensity(1.0f), _sfRange(0.0f), _sfInnerAngle(0.0f),
      _sfOuterAngle(0.78539816f)
{
}

UberLight::UberLight(const UberLight &other)
    : Inherited(other), _sfKind(other._sfKind), _sfIntensity(other._sfIntensity),
      _sfRange(other._sfRange), _sfInnerAngle(other._sfInnerAngle),
      _sfOuterAngle(other._sfOuterAngle)
{
}

// Copies between the aspects of threads, which the host does not use: the base class's part and all
// own fields, since single values cost nothing.
#if !defined(OSG_FIXED_MFIELDSYNC)
void UberLight::executeSync(FieldContainer &other, const BitVector &which)
{
    UberLight &from = static_cast<UberLight &>(other);
    Inherited::executeSyncImpl(&from, which);
#else
void UberLight::executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info)
{
    UberLight &from = static_cast<UberLight &>(other);
    Inherited::executeSyncImpl(&from, which, info);
#endif
    _sfKind.syncWith(from._sfKind);
    _sfIntensity.syncWith(from._sfIntensity);
    _sfRange.syncWith(from._sfRange);
    _sfInnerAngle.syncWith(from._sfInnerAngle);
    _sfOuterAngle.syncWith(from._sfOuterAngle);
}

OSG_END_NAMESPACE
