#include "Render/qxRenderMaterial.h"

#include "Materials/OSGSurface.h"

#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <algorithm>
#include <cmath>

namespace {

/// Switch materials may hold each other; deeper than this they can only go round in circles.
const int _deepest = 32;

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
    if (material->findAttachment(osg::Surface::getClassType()) == osg::NullFC)
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

void readLayers(std::vector<qxRenderLayer> &layers, const osg::MaterialPtr &material,
                const qxTextureSource &textures, int depth)
{
    const auto choices = osg::SwitchMaterialPtr::dcast(material);
    const auto passes = osg::MultiPassMaterialPtr::dcast(material);
    if (depth > _deepest)
        return;
    if (material == osg::NullFC) {
        layers.assign(1, qxRenderLayer());
    } else if (choices != osg::NullFC) {
        readLayers(layers, chosen(choices), textures, depth + 1);
    } else if (passes != osg::NullFC) {
        for (const osg::MaterialPtr &pass : passes->getMaterials())
            readLayers(layers, pass, textures, depth + 1);
    } else {
        const qxRenderLayer layer = readLayer(material, textures);
        if (layer.alphaMode == qxSurface::Opaque && layer.doubleSided)
            layers.clear();
        layers.push_back(layer);
    }
}

} // namespace

bool qxRenderMaterial::isOpaque() const
{
    return std::any_of(layers.begin(), layers.end(), [](const qxRenderLayer &layer) {
        return layer.alphaMode == qxSurface::Opaque;
    });
}

qxRenderMaterial qxReadMaterial(const osg::MaterialPtr &material, const qxTextureSource &textures)
{
    qxRenderMaterial result;
    result.layers.clear();
    readLayers(result.layers, material, textures, 0);
    return result;
}
