#pragma once

#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGColor4fFields.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGMaterialChunkFields.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGStateChunk.h>
#include <OpenSG/OSGUInt32Fields.h>

namespace osg {

/// The colours of a surface.
class MaterialChunk : public StateChunk {
    typedef StateChunk Inherited;

public:
    typedef MaterialChunkPtr Ptr;
    enum {
        DiffuseFieldId = Inherited::NextFieldId,
        AmbientFieldId,
        SpecularFieldId,
        EmissionFieldId,
        ShininessFieldId,
        LitFieldId,
        ColorMaterialFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(MaterialChunkPtr)

    /// Whether the diffuse alpha is below 1.
    bool isTransparent() const override { return getDiffuse().alpha() < 1.f; }

    /// Colour in light from one side; its alpha is that of the surface.
    OSG_SF_INIT(SFColor4f, Diffuse, 0, 0, 0, 1)
    /// Colour in light from all around.
    OSG_SF_INIT(SFColor4f, Ambient, 0, 0, 0, 1)
    /// Colour of highlights.
    OSG_SF_INIT(SFColor4f, Specular, 0, 0, 0, 1)
    /// Colour without any light.
    OSG_SF_INIT(SFColor4f, Emission, 0, 0, 0, 1)
    /// How small highlights are.
    OSG_SF_INIT(SFReal32, Shininess, 10)
    /// Unlit surfaces show the diffuse colour as it is.
    OSG_SF_INIT(SFBool, Lit, true)
    /// Which colour the vertex colours stand for, a GL value.
    OSG_SF_INIT(SFUInt32, ColorMaterial, GL_DIFFUSE)

protected:
    MaterialChunk() = default;
    MaterialChunk(const MaterialChunk &) = default;

    OSG_CONTAINER_STATICS
};

typedef MaterialChunk MaterialChunkBase;
typedef RefPtr<MaterialChunkPtr> MaterialChunkRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(MaterialChunk, MaterialChunkPtr)

} // namespace osg
