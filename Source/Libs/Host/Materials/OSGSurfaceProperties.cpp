#include "Materials/OSGSurfaceProperties.h"

OSG_BEGIN_NAMESPACE

const BitVector SurfaceProperties::NumbersFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::NumbersFieldId;
const BitVector SurfaceProperties::AlphaModeFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::AlphaModeFieldId;
const BitVector SurfaceProperties::DoubleSidedFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::DoubleSidedFieldId;
const BitVector SurfaceProperties::UnlitFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::UnlitFieldId;
const BitVector SurfaceProperties::EnvironmentFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::EnvironmentFieldId;
const BitVector SurfaceProperties::WrapsFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::WrapsFieldId;

FieldDescription *SurfaceProperties::_desc[] = {
    new FieldDescription(MFReal32::getClassType(), "numbers", NumbersFieldId, NumbersFieldMask,
                         false, (FieldAccessMethod)&SurfaceProperties::getMFNumbers),
    new FieldDescription(SFUInt32::getClassType(), "alphaMode", AlphaModeFieldId,
                         AlphaModeFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getSFAlphaMode),
    new FieldDescription(SFBool::getClassType(), "doubleSided", DoubleSidedFieldId,
                         DoubleSidedFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getSFDoubleSided),
    new FieldDescription(SFBool::getClassType(), "unlit", UnlitFieldId, UnlitFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getSFUnlit),
    new FieldDescription(SFBool::getClassType(), "environment", EnvironmentFieldId,
                         EnvironmentFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getSFEnvironment),
    new FieldDescription(MFUInt32::getClassType(), "wraps", WrapsFieldId, WrapsFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getMFWraps)};

FieldContainerType SurfaceProperties::_type(
    "SurfaceProperties", "Attachment", "SurfaceProperties",
    [] { return FieldContainerPtr(SurfaceProperties::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SurfaceProperties, SurfacePropertiesPtr)

SurfaceProperties::SurfaceProperties()
    : Inherited(), _sfAlphaMode(0), _sfDoubleSided(false), _sfUnlit(false), _sfEnvironment(false)
{
}

SurfaceProperties::SurfaceProperties(const SurfaceProperties &other)
    : Inherited(other), _mfNumbers(other._mfNumbers), _sfAlphaMode(other._sfAlphaMode),
      _sfDoubleSided(other._sfDoubleSided), _sfUnlit(other._sfUnlit),
      _sfEnvironment(other._sfEnvironment), _mfWraps(other._mfWraps)
{
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void SurfaceProperties::executeSync(FieldContainer &other, const BitVector &which)
{
    SurfaceProperties &from = static_cast<SurfaceProperties &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & NumbersFieldMask)
        _mfNumbers.syncWith(from._mfNumbers);
    if (which & WrapsFieldMask)
        _mfWraps.syncWith(from._mfWraps);
#else
void SurfaceProperties::executeSync(FieldContainer &other, const BitVector &which,
                                    const SyncInfo &info)
{
    SurfaceProperties &from = static_cast<SurfaceProperties &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & NumbersFieldMask)
        _mfNumbers.syncWith(from._mfNumbers, info);
    if (which & WrapsFieldMask)
        _mfWraps.syncWith(from._mfWraps, info);
#endif
    if (which & AlphaModeFieldMask)
        _sfAlphaMode.syncWith(from._sfAlphaMode);
    if (which & DoubleSidedFieldMask)
        _sfDoubleSided.syncWith(from._sfDoubleSided);
    if (which & UnlitFieldMask)
        _sfUnlit.syncWith(from._sfUnlit);
    if (which & EnvironmentFieldMask)
        _sfEnvironment.syncWith(from._sfEnvironment);
}

OSG_END_NAMESPACE
