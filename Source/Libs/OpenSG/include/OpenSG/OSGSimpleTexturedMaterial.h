#pragma once

#include <OpenSG/OSGImageFields.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSimpleTexturedMaterialFields.h>

namespace osg {

/// A material of plain colours with one picture.
class SimpleTexturedMaterial : public SimpleMaterial {
    typedef SimpleMaterial Inherited;

public:
    typedef SimpleTexturedMaterialPtr Ptr;
    enum {
        ImageFieldId = Inherited::NextFieldId,
        MinFilterFieldId,
        MagFilterFieldId,
        EnvModeFieldId,
        EnvMapFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(SimpleTexturedMaterialPtr)

    /// Also when the picture has alpha.
    bool isTransparent() const override;
    /// Takes a reference of the image and gives up the one before.
    void changed(BitVector whichField, UInt32 origin) override;

    /// Referenced when the edit ends, not by the setter.
    OSG_SF(SFImagePtr, Image)
    // Filters and the mode of mixing with the surface's colour are GL values.
    OSG_SF_INIT(SFUInt32, MinFilter, GL_LINEAR_MIPMAP_LINEAR)
    /// When a pixel of the picture covers many of the screen.
    OSG_SF_INIT(SFUInt32, MagFilter, GL_LINEAR)
    OSG_SF_INIT(SFUInt32, EnvMode, GL_REPLACE)
    /// Whether the picture is a mirror image of the surroundings.
    OSG_SF_INIT(SFBool, EnvMap, false)

protected:
    SimpleTexturedMaterial() = default;
    SimpleTexturedMaterial(const SimpleTexturedMaterial &) = default;

    void addChunksTo(State &state) const override;

    /// The image as of the last edit's end.
    RefPtr<ImagePtr> m_heldImage;

    OSG_CONTAINER_STATICS
};

typedef SimpleTexturedMaterial SimpleTexturedMaterialBase;
typedef RefPtr<SimpleTexturedMaterialPtr> SimpleTexturedMaterialRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(SimpleTexturedMaterial, SimpleTexturedMaterialPtr)

} // namespace osg
