#include "Materials/OSGSurface.h"

#include <OpenSG/OSGGL.h>

OSG_BEGIN_NAMESPACE

const BitVector Surface::FactorsFieldMask = TypeTraits<BitVector>::One << Surface::FactorsFieldId;
const BitVector Surface::AlphaModeFieldMask = TypeTraits<BitVector>::One
    << Surface::AlphaModeFieldId;
const BitVector Surface::DoubleSidedFieldMask = TypeTraits<BitVector>::One
    << Surface::DoubleSidedFieldId;
const BitVector Surface::UnlitFieldMask = TypeTraits<BitVector>::One << Surface::UnlitFieldId;
const BitVector Surface::EnvironmentFieldMask = TypeTraits<BitVector>::One
    << Surface::EnvironmentFieldId;
const BitVector Surface::WrapSFieldMask = TypeTraits<BitVector>::One << Surface::WrapSFieldId;
const BitVector Surface::WrapTFieldMask = TypeTraits<BitVector>::One << Surface::WrapTFieldId;
const BitVector Surface::TextureMatrixFieldMask = TypeTraits<BitVector>::One
    << Surface::TextureMatrixFieldId;

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
                         (FieldAccessMethod)&Surface::getSFEnvironment),
    new FieldDescription(SFUInt32::getClassType(), "wrapS", WrapSFieldId, WrapSFieldMask, false,
                         (FieldAccessMethod)&Surface::getSFWrapS),
    new FieldDescription(SFUInt32::getClassType(), "wrapT", WrapTFieldId, WrapTFieldMask, false,
                         (FieldAccessMethod)&Surface::getSFWrapT),
    new FieldDescription(MFReal32::getClassType(), "textureMatrix", TextureMatrixFieldId,
                         TextureMatrixFieldMask, false,
                         (FieldAccessMethod)&Surface::getMFTextureMatrix)};

FieldContainerType Surface::_type("Surface", "Attachment", "Surface",
                                  (PrototypeCreateF)&Surface::createEmpty, NULL, _desc,
                                  sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Surface, SurfacePtr)

Surface::Surface()
    : Inherited(), _sfAlphaMode(0), _sfDoubleSided(false), _sfUnlit(false), _sfEnvironment(false),
      _sfWrapS(GL_REPEAT), _sfWrapT(GL_REPEAT)
{
}

Surface::Surface(const Surface &other)
    : Inherited(other), _mfFactors(other._mfFactors), _sfAlphaMode(other._sfAlphaMode),
      _sfDoubleSided(other._sfDoubleSided), _sfUnlit(other._sfUnlit),
      _sfEnvironment(other._sfEnvironment), _sfWrapS(other._sfWrapS), _sfWrapT(other._sfWrapT),
      _mfTextureMatrix(other._mfTextureMatrix)
{
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void Surface::executeSync(FieldContainer &other, const BitVector &which)
{
    Surface &from = static_cast<Surface &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & FactorsFieldMask)
        _mfFactors.syncWith(from._mfFactors);
    if (which & TextureMatrixFieldMask)
        _mfTextureMatrix.syncWith(from._mfTextureMatrix);
#else
void Surface::executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info)
{
    Surface &from = static_cast<Surface &>(other);
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
