#include <OpenSG/OSGTextureChunk.h>

#include <OpenSG/OSGImage.h>

namespace osg {

OSG_FIELD_MASK(TextureChunk, Image)
OSG_FIELD_MASK(TextureChunk, MinFilter)
OSG_FIELD_MASK(TextureChunk, MagFilter)
OSG_FIELD_MASK(TextureChunk, WrapS)
OSG_FIELD_MASK(TextureChunk, WrapT)
OSG_FIELD_MASK(TextureChunk, EnvMode)

FieldDescription *TextureChunk::_desc[] = {OSG_SF_DESC(TextureChunk, Image, "image", false),
                                           OSG_SF_DESC(TextureChunk, MinFilter, "minFilter", false),
                                           OSG_SF_DESC(TextureChunk, MagFilter, "magFilter", false),
                                           OSG_SF_DESC(TextureChunk, WrapS, "wrapS", false),
                                           OSG_SF_DESC(TextureChunk, WrapT, "wrapT", false),
                                           OSG_SF_DESC(TextureChunk, EnvMode, "envMode", false)};

FieldContainerType TextureChunk::_type(
    "TextureChunk", "StateChunk", NULL,
    [] { return FieldContainerPtr(TextureChunk::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(TextureChunk, TextureChunkPtr)

TextureChunk::~TextureChunk()
{
    subRefCP(getImage());
}

void TextureChunk::setImage(ImagePtr &image)
{
    setRefdCP(getImage(), image);
}

bool TextureChunk::isTransparent() const
{
    return getImage() && getImage()->hasAlphaChannel() && getEnvMode() != GL_DECAL;
}

} // namespace osg
