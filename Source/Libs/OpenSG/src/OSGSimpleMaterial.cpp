#include <OpenSG/OSGSimpleMaterial.h>

#include <OpenSG/OSGMaterialChunk.h>

namespace osg {

OSG_FIELD_MASK(SimpleMaterial, Ambient)
OSG_FIELD_MASK(SimpleMaterial, Diffuse)
OSG_FIELD_MASK(SimpleMaterial, Specular)
OSG_FIELD_MASK(SimpleMaterial, Shininess)
OSG_FIELD_MASK(SimpleMaterial, Emission)
OSG_FIELD_MASK(SimpleMaterial, Transparency)
OSG_FIELD_MASK(SimpleMaterial, Lit)
OSG_FIELD_MASK(SimpleMaterial, ColorMaterial)

FieldDescription *SimpleMaterial::_desc[] = {
    OSG_SF_DESC(SimpleMaterial, Ambient, "ambient", false),
    OSG_SF_DESC(SimpleMaterial, Diffuse, "diffuse", false),
    OSG_SF_DESC(SimpleMaterial, Specular, "specular", false),
    OSG_SF_DESC(SimpleMaterial, Shininess, "shininess", false),
    OSG_SF_DESC(SimpleMaterial, Emission, "emission", false),
    OSG_SF_DESC(SimpleMaterial, Transparency, "transparency", false),
    OSG_SF_DESC(SimpleMaterial, Lit, "lit", false),
    OSG_SF_DESC(SimpleMaterial, ColorMaterial, "colorMaterial", false)};

FieldContainerType SimpleMaterial::_type(
    "SimpleMaterial", "ChunkMaterial", NULL,
    [] { return FieldContainerPtr(SimpleMaterial::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SimpleMaterial, SimpleMaterialPtr)

bool SimpleMaterial::isTransparent() const
{
    return getTransparency() > 0.f || Inherited::isTransparent();
}

static Color4f withAlpha(const Color3f &color, Real32 alpha)
{
    return Color4f(color.red(), color.green(), color.blue(), alpha);
}

void SimpleMaterial::addChunksTo(State &state) const
{
    const Real32 alpha = 1.f - getTransparency();
    const MaterialChunkPtr chunk = MaterialChunk::create();
    chunk->setAmbient(withAlpha(getAmbient(), alpha));
    chunk->setDiffuse(withAlpha(getDiffuse(), alpha));
    chunk->setSpecular(withAlpha(getSpecular(), alpha));
    chunk->setEmission(withAlpha(getEmission(), alpha));
    chunk->setShininess(getShininess());
    chunk->setLit(getLit());
    chunk->setColorMaterial(getColorMaterial());
    state.addChunk(chunk);
    Inherited::addChunksTo(state);
}

} // namespace osg
