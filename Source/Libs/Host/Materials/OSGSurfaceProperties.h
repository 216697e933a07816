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
        NumbersFieldId = Inherited::NextFieldId,
        AlphaModeFieldId = NumbersFieldId + 1,
        DoubleSidedFieldId = AlphaModeFieldId + 1,
        UnlitFieldId = DoubleSidedFieldId + 1,
        EnvironmentFieldId = UnlitFieldId + 1,
        WrapsFieldId = EnvironmentFieldId + 1,
        NextFieldId = WrapsFieldId + 1
    };
    static const BitVector NumbersFieldMask;
    static const BitVector AlphaModeFieldMask;
    static const BitVector DoubleSidedFieldMask;
    static const BitVector UnlitFieldMask;
    static const BitVector EnvironmentFieldMask;
    static const BitVector WrapsFieldMask;
    OSG_FIELD_CONTAINER_DECL(SurfacePropertiesPtr)

    MFReal32 *getMFNumbers() { return &_mfNumbers; }
    SFUInt32 *getSFAlphaMode() { return &_sfAlphaMode; }
    SFBool *getSFDoubleSided() { return &_sfDoubleSided; }
    SFBool *getSFUnlit() { return &_sfUnlit; }
    SFBool *getSFEnvironment() { return &_sfEnvironment; }
    MFUInt32 *getMFWraps() { return &_mfWraps; }

    /// Those of the surface, then those of its pictures, in the order of qxSurface.
    MFReal32 &getNumbers() { return _mfNumbers; }
    /// Wrap modes of the pictures, two for each.
    MFUInt32 &getWraps() { return _mfWraps; }

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

    MFReal32 _mfNumbers;
    SFUInt32 _sfAlphaMode;
    SFBool _sfDoubleSided;
    SFBool _sfUnlit;
    SFBool _sfEnvironment;
    MFUInt32 _mfWraps;

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const SurfaceProperties &);
};

OSG_FIELD_CONTAINER_INL_DEF(SurfaceProperties, SurfacePropertiesPtr)

OSG_END_NAMESPACE
