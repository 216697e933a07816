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

    OSG_SF(SFColor3f, Ambient)
    OSG_SF(SFColor3f, Diffuse)
    OSG_SF(SFColor3f, Specular)
    OSG_SF_INIT(SFReal32, Shininess, 1)
    OSG_SF(SFColor3f, Emission)
    /// 0: opaque, 1: invisible.
    OSG_SF_INIT(SFReal32, Transparency, 0)
    OSG_SF_INIT(SFBool, Lit, true)
    /// Which colour the vertex colours stand for, a GL value.
    OSG_SF_INIT(SFUInt32, ColorMaterial, GL_DIFFUSE)

protected:
    SimpleMaterial() = default;
    SimpleMaterial(const SimpleMaterial &) = default;

    void addChunksTo(State &state) const override;

    OSG_CONTAINER_STATICS
};

typedef SimpleMaterial SimpleMaterialBase;
typedef RefPtr<SimpleMaterialPtr> SimpleMaterialRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(SimpleMaterial, SimpleMaterialPtr)

} // namespace osg
