#include "Render/qxRenderMaterial.h"

#include "Materials/OSGSurfaceProperties.h"
#include "Render/qxRenderMath.h"

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
    layer.look.metallic = 0;
    layer.look.roughness = unit(std::pow(2.0f / (std::max(shininess, 0.0f) + 1.0f), 0.25f));
}

/// Light that is left after a length (KHR_materials_volume, "Attenuation"), as an exponent.
osg::Vec3f attenuationOf(const qxSurface &surface)
{
    osg::Vec3f result;
    if (!(surface.attenuationDistance > 0.0f) || !std::isfinite(surface.attenuationDistance))
        return result;
    const osg::Vec3f left = lightIn(surface.attenuationColour);
    for (osg::UInt32 i = 0; i < 3; ++i)
        result[i] = -std::log(std::clamp(left[i], 1e-4f, 1.0f)) / surface.attenuationDistance;
    return result;
}

// A list, not a procedure.
void readNumbers(qxRenderLayer &layer, const qxSurface &surface)
{
    qxShading::Surface &look = layer.look;
    look.metallic = unit(surface.metallic);
    look.roughness = unit(surface.roughness);
    look.ior = surface.ior >= 1.0f ? surface.ior : surface.ior == 0.0f ? 0.0f : 1.0f;
    look.specular = unit(surface.specular);
    look.specularColour = lightIn(surface.specularColour);
    look.coat = unit(surface.clearcoat);
    look.coatRoughness = unit(surface.clearcoatRoughness);
    const osg::Vec3f sheen = lightIn(surface.sheenColour);
    look.sheen = sheen * (1.0f / std::max(qxPeak(sheen), 1.0f));
    look.sheenRoughness = unit(surface.sheenRoughness);
    look.transmission = unit(surface.transmission);
    look.isBody = surface.thickness > 0.0f;
    look.attenuation = attenuationOf(surface);
    look.iridescence = unit(surface.iridescence);
    look.filmIor = std::max(amount(surface.iridescenceIor), 1.0f);
    look.filmThickness = amount(surface.iridescenceThickest);
    look.anisotropy = unit(surface.anisotropy);
    look.diffuseTransmission = unit(surface.diffuseTransmission);
    look.diffuseTransmissionColour = lightIn(surface.diffuseTransmissionColour);
    look.emission *= amount(surface.emissiveStrength);
    layer.alphaCutoff = surface.alphaCutoff;
    layer.alphaMode = surface.alphaMode;
    layer.doubleSided = surface.doubleSided;
    layer.unlit = layer.unlit || surface.unlit;
    layer.normalScale = surface.normalScale;
    layer.coatNormalScale = surface.clearcoatNormalScale;
    layer.occlusionStrength = unit(surface.occlusionStrength);
    layer.thinnestFilm = amount(surface.iridescenceThinnest);
    layer.grainAngle = surface.anisotropyRotation;
}

/// Whether a picture changes anything: factors of 0 make those of whole lobes needless.
bool matters(qxSurface::PictureRole role, const qxShading::Surface &look)
{
    switch (role) {
    case qxSurface::BaseColour: // stands apart
        return false;
    case qxSurface::Emissive:
        return qxPeak(look.emission) > 0.0f;
    case qxSurface::Clearcoat:
    case qxSurface::ClearcoatRoughness:
    case qxSurface::ClearcoatNormal:
        return look.coat > 0.0f;
    case qxSurface::SheenColour:
    case qxSurface::SheenRoughness:
        return qxPeak(look.sheen) > 0.0f;
    case qxSurface::Transmission:
        return look.transmission > 0.0f;
    case qxSurface::Iridescence:
    case qxSurface::IridescenceThickness:
        return look.iridescence > 0.0f;
    case qxSurface::Anisotropy:
        return look.anisotropy > 0.0f;
    case qxSurface::DiffuseTransmission:
    case qxSurface::DiffuseTransmissionColour:
        return look.diffuseTransmission > 0.0f;
    default:
        return true;
    }
}

qxRenderPicture pictureOf(const qxSurface &surface, std::size_t role)
{
    const qxSurfacePicture &from = surface.pictures[role];
    qxRenderPicture picture;
    picture.role = qxSurface::PictureRole(role);
    picture.wrap = {from.wrapS, from.wrapT};
    picture.texCoords = from.texCoords;
    picture.matrix = from.matrix;
    return picture;
}

void readPictures(qxRenderLayer &layer, const qxSurface &surface, const qxTextureSource &textures)
{
    for (std::size_t role = 0; role < surface.pictures.size(); ++role) {
        if (!matters(qxSurface::PictureRole(role), layer.look))
            continue;
        const bool isColour = qxSurface::pictureKinds()[role].isColour;
        qxRenderPicture picture = pictureOf(surface, role);
        picture.texture = textures(surface.pictures[role].image,
                                   isColour ? qxRenderTexture::Colours : qxRenderTexture::Numbers);
        if (picture.texture)
            layer.pictures.push_back(std::move(picture));
    }
}

void readSurface(qxRenderLayer &layer, const osg::MaterialPtr &material,
                 const qxTextureSource &textures)
{
    if (material->findAttachment(osg::SurfaceProperties::getClassType()) == osg::NullFC)
        return;
    const qxSurface surface = qxSurface::of(material);
    readNumbers(layer, surface);
    if (!layer.unlit)
        readPictures(layer, surface, textures);
}

void readChunks(qxRenderLayer &layer, const osg::ChunkMaterialPtr &material,
                const qxTextureSource &textures)
{
    const auto colours =
        osg::MaterialChunkPtr::dcast(material->find(osg::MaterialChunk::getClassType()));
    if (colours != osg::NullFC) {
        layer.look.base = lightIn(colours->getDiffuse());
        layer.alpha = unit(colours->getDiffuse().alpha());
        layer.look.emission = lightIn(colours->getEmission());
        layer.unlit = !colours->getLit();
        readHighlight(layer, colours->getShininess());
    }
    const auto picture =
        osg::TextureChunkPtr::dcast(material->find(osg::TextureChunk::getClassType()));
    if (picture != osg::NullFC) {
        layer.picture.texture = textures(picture->getImage(), qxRenderTexture::Colours);
        layer.picture.wrap = {picture->getWrapS(), picture->getWrapT()};
        layer.textureUse = textureUse(picture->getEnvMode());
    }
}

void readSimple(qxRenderLayer &layer, const osg::SimpleMaterialPtr &material,
                const qxTextureSource &textures)
{
    layer.look.base = lightIn(material->getDiffuse());
    layer.alpha = 1.0f - unit(material->getTransparency());
    layer.look.emission = lightIn(material->getEmission());
    layer.unlit = !material->getLit();
    readHighlight(layer, material->getShininess());
    const auto textured = osg::SimpleTexturedMaterialPtr::dcast(material);
    if (textured == osg::NullFC)
        return;
    layer.picture = pictureOf(qxSurface::of(material), qxSurface::BaseColour);
    layer.picture.texture = textures(textured->getImage(), qxRenderTexture::Colours);
    layer.textureUse = textureUse(textured->getEnvMode());
}

/// A texture that replaces the colour is not lit, as the mode has it.
void settle(qxRenderLayer &layer)
{
    if (layer.picture.texture && layer.textureUse == qxRenderLayer::Replace)
        layer.unlit = true;
    if (layer.alphaMode == qxSurface::Opaque && layer.alpha < 1.0f)
        layer.alphaMode = qxSurface::Blend;
}

qxRenderLayer readLayer(const osg::MaterialPtr &material, const qxTextureSource &textures)
{
    qxRenderLayer layer = qxPlainLayer();
    const auto chunks = osg::ChunkMaterialPtr::dcast(material);
    const auto simple = osg::SimpleMaterialPtr::dcast(material);
    if (chunks != osg::NullFC)
        readChunks(layer, chunks, textures);
    if (simple != osg::NullFC)
        readSimple(layer, simple, textures);
    readSurface(layer, material, textures);
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
            m_layers.assign(1, qxPlainLayer());
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
        if (layer.alphaMode == qxSurface::Opaque && layer.doubleSided && !layer.isClear())
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
        return layer.alphaMode == qxSurface::Opaque && !layer.isClear();
    });
}

bool qxRenderMaterial::hasPictures() const
{
    return std::any_of(layers.begin(), layers.end(), [](const qxRenderLayer &layer) {
        return layer.picture.texture || !layer.pictures.empty();
    });
}

qxRenderLayer qxPlainLayer()
{
    qxRenderLayer layer;
    layer.look.base = osg::Vec3f(0.6f, 0.6f, 0.6f);
    layer.look.roughness = 0.6f;
    return layer;
}

qxRenderMaterial qxReadMaterial(const osg::MaterialPtr &material, const qxTextureSource &textures)
{
    LayerReader reader(textures);
    reader.add(material);
    qxRenderMaterial result;
    result.layers = std::move(reader.layers());
    return result;
}
