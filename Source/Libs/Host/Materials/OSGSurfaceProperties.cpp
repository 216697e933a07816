#include "Materials/OSGSurfaceProperties.h"

#include <OpenSG/OSGGL.h>

OSG_BEGIN_NAMESPACE

const BitVector SurfaceProperties::FactorsFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::FactorsFieldId;
const BitVector SurfaceProperties::AlphaModeFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::AlphaModeFieldId;
const BitVector SurfaceProperties::DoubleSidedFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::DoubleSidedFieldId;
const BitVector SurfaceProperties::UnlitFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::UnlitFieldId;
const BitVector SurfaceProperties::EnvironmentFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::EnvironmentFieldId;
const BitVector SurfaceProperties::WrapSFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::WrapSFieldId;
const BitVector SurfaceProperties::WrapTFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::WrapTFieldId;
const BitVector SurfaceProperties::TextureMatrixFieldMask = TypeTraits<BitVector>::One
    << SurfaceProperties::TextureMatrixFieldId;

FieldDescription *SurfaceProperties::_desc[] = {
    new FieldDescription(MFReal32::getClassType(), "factors", FactorsFieldId, FactorsFieldMask,
                         false, (FieldAccessMethod)&SurfaceProperties::getMFFactors),
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
    new FieldDescription(SFUInt32::getClassType(), "wrapS", WrapSFieldId, WrapSFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getSFWrapS),
    new FieldDescription(SFUInt32::getClassType(), "wrapT", WrapTFieldId, WrapTFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getSFWrapT),
    new FieldDescription(MFReal32::getClassType(), "textureMatrix", TextureMatrixFieldId,
                         TextureMatrixFieldMask, false,
                         (FieldAccessMethod)&SurfaceProperties::getMFTextureMatrix)};

FieldContainerType SurfaceProperties::_type(
    "SurfaceProperties", "Attachment", "SurfaceProperties",
    [] { return FieldContainerPtr(SurfaceProperties::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SurfaceProperties, SurfacePropertiesPtr)

SurfaceProperties::SurfaceProperties()
    : Inherited(), _sfAlphaMode(0), _sfDoubleSided(false), _sfUnlit(false), _sfEnvironment(false),
      _sfWrapS(GL_REPEAT), _sfWrapT(GL_REPEAT)
{
}

SurfaceProperties::SurfaceProperties(const SurfaceProperties &other)
    : Inherited(other), _mfFactors(other._mfFactors), _sfAlphaMode(other._sfAlphaMode),
      _sfDoubleSided(other._sfDoubleSided), _sfUnlit(other._sfUnlit),
      _sfEnvironment(other._sfEnvironment), _sfWrapS(other._sfWrapS), _sfWrapT(other._sfWrapT),
      _mfTextureMatrix(other._mfTextureMatrix)
{
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void SurfaceProperties::executeSync(FieldContainer &other, const BitVector &which)
{
    SurfaceProperties &from = static_cast<SurfaceProperties &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & FactorsFieldMask)
        _mfFactors.syncWith(from._mfFactors);
    if (which & TextureMatrixFieldMask)
        _mfTextureMatrix.syncWith(from._mfTextureMatrix);
#else
void SurfaceProperties::executeSync(FieldContainer &other, const BitVector &which,
                                    const SyncInfo &info)
{
    SurfaceProperties &from = static_cast<SurfaceProperties &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & FactorsFieldMask)
        _mfFactors.syncWith(from._mfFactors, info);
    if (which & TextureMatrixFieldMask)
        _mfTextureMatrix.syncWith(from._mfTextureMatrix, info);
#endif
    if (which & AlphaModeFieldMask)
        _sfAlphaMode.syncWith(from._sfAlphaMode);
    if (which & DoubleSidedFieldMask)
        _sfDoubleSided.syncWith(from._sfDoubleSided);
    if (which & UnlitFieldMask)
        _sfUnlit.syncWith(from._sfUnlit);
    if (which & EnvironmentFieldMask)
        _sfEnvironment.syncWith(from._sfEnvironment);
    if (which & WrapSFieldMask)
        _sfWrapS.syncWith(from._sfWrapS);
    if (which & WrapTFieldMask)
        _sfWrapT.syncWith(from._sfWrapT);
}

OSG_END_NAMESPACE
