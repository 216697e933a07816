#include "Materials/OSGSurface.h"

OSG_BEGIN_NAMESPACE

const BitVector Surface::FactorsFieldMask = TypeTraits<BitVector>::One << Surface::FactorsFieldId;
const BitVector Surface::AlphaModeFieldMask = TypeTraits<BitVector>::One
    << Surface::AlphaModeFieldId;
const BitVector Surface::DoubleSidedFieldMask = TypeTraits<BitVector>::One
    << Surface::DoubleSidedFieldId;
const BitVector Surface::UnlitFieldMask = TypeTraits<BitVector>::One << Surface::UnlitFieldId;
const BitVector Surface::EnvironmentFieldMask = TypeTraits<BitVector>::One
    << Surface::EnvironmentFieldId;

FieldDescription *Surface::_desc[] = {
    new FieldDescription(MFReal32::getClassType(), "factors", FactorsFieldId, FactorsFieldMask,
                         false, (FieldAccessMethod)&Surface::getMFFactors),
    new FieldDescription(SFUInt32::getClassType(), "alphaMode", AlphaModeFieldId,
                         AlphaModeFieldMask, false, (FieldAccessMethod)&Surface::getSFAlphaMode),
    new FieldDescription(SFBool::getClassType(), "doubleSided", DoubleSidedFieldId,
                         DoubleSidedFieldMask, false,
                         (FieldAccessMethod)&Surface::getSFDoubleSided),
    new FieldDescription(SFBool::getClassType(), "unlit", UnlitFieldId, UnlitFieldMask, false,
                         (FieldAccessMethod)&Surface::getSFUnlit),
    new FieldDescription(SFBool::getClassType(), "environment", EnvironmentFieldId,
                         EnvironmentFieldMask, false,
                         (FieldAccessMethod)&Surface::getSFEnvironment)};

FieldContainerType Surface::_type("Surface", "Attachment", "Surface",
                                  (PrototypeCreateF)&Surface::createEmpty, NULL, _desc,
                                  sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Surface, SurfacePtr)

Surface::Surface()
    : Inherited(), _sfAlphaMode(0), _sfDoubleSided(false), _sfUnlit(false), _sfEnvironment(false)
{
}

Surface::Surface(const Surface &other)
    : Inherited(other), _mfFactors(other._mfFactors), _sfAlphaMode(other._sfAlphaMode),
      _sfDoubleSided(other._sfDoubleSided), _sfUnlit(other._sfUnlit),
      _sfEnvironment(other._sfEnvironment)
{
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void Surface::executeSync(FieldContainer &other, const BitVector &which)
{
    Surface &from = static_cast<Surface &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & FactorsFieldMask)
        _mfFactors.syncWith(from._mfFactors);
#else
void Surface::executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info)
{
    Surface &from = static_cast<Surface &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & FactorsFieldMask)
        _mfFactors.syncWith(from._mfFactors, info);
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
