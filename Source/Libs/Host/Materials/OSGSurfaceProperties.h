#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class SurfaceProperties;
typedef FCPtr<AttachmentPtr, SurfaceProperties> SurfacePropertiesPtr;

/// Properties of a material in a scene file for which the material itself has no field. Read and
/// written through qxSurface.
class SurfaceProperties : public Attachment {
    typedef Attachment Inherited;

public:
    typedef SurfacePropertiesPtr Ptr;
    enum {
        FactorsFieldId = Inherited::NextFieldId,
        AlphaModeFieldId = FactorsFieldId + 1,
        DoubleSidedFieldId = AlphaModeFieldId + 1,
        UnlitFieldId = DoubleSidedFieldId + 1,
        EnvironmentFieldId = UnlitFieldId + 1,
        WrapSFieldId = EnvironmentFieldId + 1,
        WrapTFieldId = WrapSFieldId + 1,
        TextureMatrixFieldId = WrapTFieldId + 1,
        NextFieldId = TextureMatrixFieldId + 1
    };
    static const BitVector FactorsFieldMask;
    static const BitVector AlphaModeFieldMask;
    static const BitVector DoubleSidedFieldMask;
    static const BitVector UnlitFieldMask;
    static const BitVector EnvironmentFieldMask;
    static const BitVector WrapSFieldMask;
    static const BitVector WrapTFieldMask;
    static const BitVector TextureMatrixFieldMask;
    OSG_FIELD_CONTAINER_DECL(SurfacePropertiesPtr)

    MFReal32 *getMFFactors() { return &_mfFactors; }
    SFUInt32 *getSFAlphaMode() { return &_sfAlphaMode; }
    SFBool *getSFDoubleSided() { return &_sfDoubleSided; }
    SFBool *getSFUnlit() { return &_sfUnlit; }
    SFBool *getSFEnvironment() { return &_sfEnvironment; }
    SFUInt32 *getSFWrapS() { return &_sfWrapS; }
    SFUInt32 *getSFWrapT() { return &_sfWrapT; }
    MFReal32 *getMFTextureMatrix() { return &_mfTextureMatrix; }

    /// Metallic, roughness, alpha cut-off, emissive strength.
    MFReal32 &getFactors() { return _mfFactors; }
    /// Six numbers, row after row.
    MFReal32 &getTextureMatrix() { return _mfTextureMatrix; }

    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    SurfaceProperties();
    SurfaceProperties(const SurfaceProperties &other);
    ~SurfaceProperties() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

    MFReal32 _mfFactors;
    SFUInt32 _sfAlphaMode;
    SFBool _sfDoubleSided;
    SFBool _sfUnlit;
    SFBool _sfEnvironment;
    SFUInt32 _sfWrapS;
    SFUInt32 _sfWrapT;
    MFReal32 _mfTextureMatrix;

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const SurfaceProperties &);
};

OSG_FIELD_CONTAINER_INL_DEF(SurfaceProperties, SurfacePropertiesPtr)

OSG_END_NAMESPACE
