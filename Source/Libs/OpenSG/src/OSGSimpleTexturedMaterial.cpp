#include <OpenSG/OSGSimpleTexturedMaterial.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGTextureChunk.h>

namespace osg {

OSG_FIELD_MASK(SimpleTexturedMaterial, Image)
OSG_FIELD_MASK(SimpleTexturedMaterial, MinFilter)
OSG_FIELD_MASK(SimpleTexturedMaterial, MagFilter)
OSG_FIELD_MASK(SimpleTexturedMaterial, EnvMode)
OSG_FIELD_MASK(SimpleTexturedMaterial, EnvMap)

FieldDescription *SimpleTexturedMaterial::_desc[] = {
    OSG_SF_DESC(SimpleTexturedMaterial, Image, "image", false),
    OSG_SF_DESC(SimpleTexturedMaterial, MinFilter, "minFilter", false),
    OSG_SF_DESC(SimpleTexturedMaterial, MagFilter, "magFilter", false),
    OSG_SF_DESC(SimpleTexturedMaterial, EnvMode, "envMode", false),
    OSG_SF_DESC(SimpleTexturedMaterial, EnvMap, "envMap", false)};

FieldContainerType SimpleTexturedMaterial::_type(
    "SimpleTexturedMaterial", "SimpleMaterial", NULL,
    [] { return FieldContainerPtr(SimpleTexturedMaterial::createEmpty()); }, NULL, _desc,
    sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SimpleTexturedMaterial, SimpleTexturedMaterialPtr)

bool SimpleTexturedMaterial::isTransparent() const
{
    const bool hasAlpha = getImage() && getImage()->hasAlphaChannel() && getEnvMode() != GL_DECAL;
    return hasAlpha || Inherited::isTransparent();
}

void SimpleTexturedMaterial::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & ImageFieldMask)
        m_heldImage = getImage();
    Inherited::changed(whichField, origin);
}

void SimpleTexturedMaterial::addChunksTo(State &state) const
{
    Inherited::addChunksTo(state);
    const TextureChunkPtr chunk = TextureChunk::create();
    ImagePtr image = m_heldImage;
    chunk->setImage(image);
    chunk->setMinFilter(getMinFilter());
    chunk->setMagFilter(getMagFilter());
    chunk->setEnvMode(getEnvMode());
    state.addChunk(chunk);
}

} // namespace osg
