#include <OpenSG/OSGMaterialChunk.h>

namespace osg {

OSG_FIELD_MASK(MaterialChunk, Diffuse)
OSG_FIELD_MASK(MaterialChunk, Ambient)
OSG_FIELD_MASK(MaterialChunk, Specular)
OSG_FIELD_MASK(MaterialChunk, Emission)
OSG_FIELD_MASK(MaterialChunk, Shininess)
OSG_FIELD_MASK(MaterialChunk, Lit)
OSG_FIELD_MASK(MaterialChunk, ColorMaterial)

FieldDescription *MaterialChunk::_desc[] = {
    OSG_SF_DESC(MaterialChunk, Diffuse, "diffuse", false),
    OSG_SF_DESC(MaterialChunk, Ambient, "ambient", false),
    OSG_SF_DESC(MaterialChunk, Specular, "specular", false),
    OSG_SF_DESC(MaterialChunk, Emission, "emission", false),
    OSG_SF_DESC(MaterialChunk, Shininess, "shininess", false),
    OSG_SF_DESC(MaterialChunk, Lit, "lit", false),
    OSG_SF_DESC(MaterialChunk, ColorMaterial, "colorMaterial", false)};

FieldContainerType MaterialChunk::_type(
    "MaterialChunk", "StateChunk", NULL,
    [] { return FieldContainerPtr(MaterialChunk::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(MaterialChunk, MaterialChunkPtr)

} // namespace osg
