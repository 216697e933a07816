#pragma once

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImageFields.h>
#include <OpenSG/OSGStateChunk.h>
#include <OpenSG/OSGTextureChunkFields.h>
#include <OpenSG/OSGUInt32Fields.h>

namespace osg {

/// A picture on a surface.
class TextureChunk : public StateChunk {
    typedef StateChunk Inherited;

public:
    typedef TextureChunkPtr Ptr;
    enum {
        ImageFieldId = Inherited::NextFieldId,
        MinFilterFieldId,
        MagFilterFieldId,
        WrapSFieldId,
        WrapTFieldId,
        EnvModeFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(TextureChunkPtr)

    static const BitVector ImageFieldMask;
    /// The picture, null for none.
    SFImagePtr *getSFImage() { return &_sfImage; }
    ImagePtr &getImage() { return _sfImage.getValue(); }
    const ImagePtr &getImage() const { return _sfImage.getValue(); }
    /// References the image and releases the one before.
    void setImage(ImagePtr &image);

    /// Whether the picture has an alpha channel that replaces or modulates the surface's.
    bool isTransparent() const override;

    // Filters, wraps and the mode of mixing with the surface's colour are GL values.
    /// When a pixel of the screen covers many of the picture, and the other way round.
    OSG_SF_INIT(SFUInt32, MinFilter, GL_LINEAR_MIPMAP_LINEAR)
    OSG_SF_INIT(SFUInt32, MagFilter, GL_LINEAR)
    /// What is seen beyond the edges, to the right and upwards.
    OSG_SF_INIT(SFUInt32, WrapS, GL_REPEAT)
    OSG_SF_INIT(SFUInt32, WrapT, GL_REPEAT)
    /// Replaces, modulates, blends or decals the colour.
    OSG_SF_INIT(SFUInt32, EnvMode, GL_REPLACE)

protected:
    TextureChunk() = default;
    TextureChunk(const TextureChunk &) = default;
    ~TextureChunk() override;

    SFImagePtr _sfImage;

    OSG_CONTAINER_STATICS
};

typedef TextureChunk TextureChunkBase;
typedef RefPtr<TextureChunkPtr> TextureChunkRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(TextureChunk, TextureChunkPtr)

} // namespace osg
