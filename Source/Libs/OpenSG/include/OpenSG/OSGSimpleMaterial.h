#pragma once

#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGColor3fFields.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGSimpleMaterialFields.h>
#include <OpenSG/OSGUInt32Fields.h>

namespace osg {

/// A material of plain colours, black at first.
class SimpleMaterial : public ChunkMaterial {
    typedef ChunkMaterial Inherited;

public:
    typedef SimpleMaterialPtr Ptr;
    enum {
        AmbientFieldId = Inherited::NextFieldId,
        DiffuseFieldId,
        SpecularFieldId,
        ShininessFieldId,
        EmissionFieldId,
        TransparencyFieldId,
        LitFieldId,
        ColorMaterialFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(SimpleMaterialPtr)

    /// Follows the transparency, unless the mode forces it.
    bool isTransparent() const override;

    /// Colour in light from all around.
    OSG_SF(SFColor3f, Ambient)
    /// Colour in light from one side.
    OSG_SF(SFColor3f, Diffuse)
    /// Colour of highlights.
    OSG_SF(SFColor3f, Specular)
    /// How small highlights are; 1 is dull, 128 a mirror.
    OSG_SF_INIT(SFReal32, Shininess, 1)
    /// Colour without any light.
    OSG_SF(SFColor3f, Emission)
    /// 0: opaque, 1: invisible.
    OSG_SF_INIT(SFReal32, Transparency, 0)
    /// Whether lights matter; if not, the diffuse colour is shown as it is.
    OSG_SF_INIT(SFBool, Lit, true)
    /// Which colour the vertex colours stand for, a GL value.
    OSG_SF_INIT(SFUInt32, ColorMaterial, GL_DIFFUSE)

protected:
    SimpleMaterial() = default;
    SimpleMaterial(const SimpleMaterial &) = default;

    /// The colours as one chunk, then the chunks added by hand.
    void addChunksTo(State &state) const override;

    OSG_CONTAINER_STATICS
};

typedef SimpleMaterial SimpleMaterialBase;
typedef RefPtr<SimpleMaterialPtr> SimpleMaterialRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(SimpleMaterial, SimpleMaterialPtr)

} // namespace osg
