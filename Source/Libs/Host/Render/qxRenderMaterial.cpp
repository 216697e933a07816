#include "Render/qxRenderMaterial.h"

#include "Materials/OSGSurfaceProperties.h"

#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <algorithm>
#include <cmath>

namespace {

/// So many make one surface. Few that hold each other several times would be endless work.
const int _mostMaterials = 1000;

float unit(float value)
{
    return value > 0.0f ? std::min(value, 1.0f) : 0.0f; // 0 also for what is no number
}

/// Colours of light have no upper limit.
float amount(float value)
{
    return value > 0.0f && std::isfinite(value) ? value : 0.0f;
}

template <class Colour>
osg::Vec3f lightIn(const Colour &colour)
{
    return osg::Vec3f(amount(colour[0]), amount(colour[1]), amount(colour[2]));
}

qxRenderLayer::TextureUse textureUse(osg::UInt32 environmentMode)
{
    if (environmentMode == GL_REPLACE)
        return qxRenderLayer::Replace;
    return environmentMode == GL_DECAL ? qxRenderLayer::Decal : qxRenderLayer::Modulate;
}

/// A surface whose material only says how small its highlights are.
void readHighlight(qxRenderLayer &layer, float shininess)
{
    layer.metallic = 0;
    layer.roughness = unit(std::pow(2.0f / (std::max(shininess, 0.0f) + 1.0f), 0.25f));
}

void readSurface(qxRenderLayer &layer, const osg::MaterialPtr &material)
{
    if (material->findAttachment(osg::SurfaceProperties::getClassType()) == osg::NullFC)
        return;
    const qxSurface surface = qxSurface::of(material);
    layer.metallic = unit(surface.metallic);
    layer.roughness = unit(surface.roughness);
    layer.alphaCutoff = surface.alphaCutoff;
    layer.alphaMode = surface.alphaMode;
    layer.doubleSided = surface.doubleSided;
    layer.unlit = layer.unlit || surface.unlit;
    layer.emission *= amount(surface.emissiveStrength);
}

void readChunks(qxRenderLayer &layer, const osg::ChunkMaterialPtr &material,
                const qxTextureSource &textures)
{
    const auto colours =
        osg::MaterialChunkPtr::dcast(material->find(osg::MaterialChunk::getClassType()));
    if (colours != osg::NullFC) {
        layer.base = lightIn(colours->getDiffuse());
        layer.alpha = unit(colours->getDiffuse().alpha());
        layer.emission = lightIn(colours->getEmission());
        layer.unlit = !colours->getLit();
        readHighlight(layer, colours->getShininess());
    }
    const auto picture =
        osg::TextureChunkPtr::dcast(material->find(osg::TextureChunk::getClassType()));
    if (picture != osg::NullFC) {
        layer.texture = textures(picture->getImage());
        layer.wrap = {picture->getWrapS(), picture->getWrapT()};
        layer.textureUse = textureUse(picture->getEnvMode());
    }
}

void readSimple(qxRenderLayer &layer, const osg::SimpleMaterialPtr &material,
                const qxTextureSource &textures)
{
    layer.base = lightIn(material->getDiffuse());
    layer.alpha = 1.0f - unit(material->getTransparency());
    layer.emission = lightIn(material->getEmission());
    layer.unlit = !material->getLit();
    readHighlight(layer, material->getShininess());
    const auto textured = osg::SimpleTexturedMaterialPtr::dcast(material);
    if (textured == osg::NullFC)
        return;
    layer.texture = textures(textured->getImage());
    layer.textureUse = textureUse(textured->getEnvMode());
    const qxSurface surface = qxSurface::of(material);
    layer.wrap = {surface.wrapS, surface.wrapT};
    layer.textureMatrix = surface.textureMatrix;
}

/// A texture that replaces the colour is not lit, as the mode has it.
void settle(qxRenderLayer &layer)
{
    if (layer.texture && layer.textureUse == qxRenderLayer::Replace)
        layer.unlit = true;
    if (layer.alphaMode == qxSurface::Opaque && layer.alpha < 1.0f)
        layer.alphaMode = qxSurface::Blend;
}

qxRenderLayer readLayer(const osg::MaterialPtr &material, const qxTextureSource &textures)
{
    qxRenderLayer layer;
    const auto chunks = osg::ChunkMaterialPtr::dcast(material);
    const auto simple = osg::SimpleMaterialPtr::dcast(material);
    if (chunks != osg::NullFC)
        readChunks(layer, chunks, textures);
    if (simple != osg::NullFC)
        readSimple(layer, simple, textures);
    readSurface(layer, material);
    settle(layer);
    return layer;
}

osg::MaterialPtr chosen(const osg::SwitchMaterialPtr &material)
{
    const bool isThere = material->getChoice() < material->getMaterials().size();
    return isThere ? material->getMaterials()[material->getChoice()] : osg::MaterialPtr();
}

/// Materials may hold each other, in circles too.
class LayerReader {
public:
    explicit LayerReader(const qxTextureSource &textures) : m_textures(textures) {}

    /// A material that comes again inside of itself adds nothing there.
    void add(const osg::MaterialPtr &material)
    {
        const bool again = std::find(m_path.begin(), m_path.end(), material) != m_path.end();
        if (again || ++m_count > _mostMaterials)
            return;
        m_path.push_back(material);
        const auto choices = osg::SwitchMaterialPtr::dcast(material);
        const auto passes = osg::MultiPassMaterialPtr::dcast(material);
        if (material == osg::NullFC) {
            m_layers.assign(1, qxRenderLayer());
        } else if (choices != osg::NullFC) {
            add(chosen(choices));
        } else if (passes != osg::NullFC) {
            for (const osg::MaterialPtr &pass : passes->getMaterials())
                add(pass);
        } else {
            addLayer(readLayer(material, m_textures));
        }
        m_path.pop_back();
    }

    std::vector<qxRenderLayer> &layers() { return m_layers; }

private:
    void addLayer(const qxRenderLayer &layer)
    {
        if (layer.alphaMode == qxSurface::Opaque && layer.doubleSided)
            m_layers.clear();
        m_layers.push_back(layer);
    }

    const qxTextureSource &m_textures;
    std::vector<qxRenderLayer> m_layers;
    std::vector<osg::MaterialPtr> m_path; ///< from the outermost material to this one
    int m_count = 0;
};

} // namespace

bool qxRenderMaterial::isOpaque() const
{
    return std::any_of(layers.begin(), layers.end(), [](const qxRenderLayer &layer) {
        return layer.alphaMode == qxSurface::Opaque;
    });
}

qxRenderMaterial qxReadMaterial(const osg::MaterialPtr &material, const qxTextureSource &textures)
{
    LayerReader reader(textures);
    reader.add(material);
    qxRenderMaterial result;
    result.layers = std::move(reader.layers());
    return result;
}
