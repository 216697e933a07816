#include "Files/Gltf/Read/qxGltfMaterials.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfNames.h"
#include "Files/Gltf/Read/qxGltfImages.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Materials/qxSurface.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>

#include <algorithm>
#include <cmath>

namespace {

/// Member `name` of the extension `extension` of `object`.
const qxJson &extensionValue(const qxJson &object, const char *extension, const char *name)
{
    return qxGltfMember(qxGltfMember(qxGltfMember(object, "extensions"), extension), name);
}

qxSurface surfaceOf(const tinygltf::Material &material, const qxJson &json)
{
    const qxJson &strength =
        extensionValue(json, "KHR_materials_emissive_strength", "emissiveStrength");
    qxSurface surface;
    surface.metallic = float(material.pbrMetallicRoughness.metallicFactor);
    surface.roughness = float(material.pbrMetallicRoughness.roughnessFactor);
    surface.alphaCutoff = float(material.alphaCutoff);
    surface.emissiveStrength = strength.is_number() ? strength.get<float>() : 1.0f;
    surface.doubleSided = material.doubleSided;
    surface.unlit =
        !qxGltfMember(qxGltfMember(json, "extensions"), "KHR_materials_unlit").is_null();
    if (material.alphaMode == "BLEND")
        surface.alphaMode = qxSurface::Blend;
    else if (material.alphaMode == "MASK")
        surface.alphaMode = qxSurface::Mask;
    return surface;
}

/// A kind of pictures that is not drawn.
struct HiddenPicture {
    const char *words;
    const char *member; ///< that names the picture in a material
    bool isOfSurface; ///< whether it stands in "pbrMetallicRoughness"

    bool isIn(const qxJson &material) const
    {
        const qxJson &surface = qxGltfMember(material, "pbrMetallicRoughness");
        return !qxGltfMember(isOfSurface ? surface : material, member).is_null();
    }
};

const HiddenPicture _metallicRoughness = {"metallic-roughness", "metallicRoughnessTexture", true};
const HiddenPicture _emissive = {"emissive", "emissiveTexture", false};
const HiddenPicture _normal = {"normal", "normalTexture", false};
const HiddenPicture _occlusion = {"occlusion", "occlusionTexture", false};

/// A factor is the most that its picture may say, and usually 1. Without the picture it would make
/// iron of cloth, and a lamp of the whole body that a small lamp is painted on.
void setFactorsWithoutPictures(tinygltf::Material &values, const qxJson &json)
{
    if (_metallicRoughness.isIn(json))
        values.pbrMetallicRoughness.metallicFactor = 0;
    if (_emissive.isIn(json))
        values.emissiveFactor = {0, 0, 0};
}

/// How a sampler goes on beyond the edges of its picture.
osg::UInt32 wrapOf(const qxJson &sampler, const char *side)
{
    const qxJson &mode = qxGltfMember(sampler, side);
    for (const osg::UInt32 known : {GL_CLAMP_TO_EDGE, GL_MIRRORED_REPEAT}) {
        if (mode == known)
            return known;
    }
    return GL_REPEAT;
}

float numberOr(const qxJson &value, float fallback)
{
    return value.is_number() ? value.get<float>() : fallback;
}

float entryOr(const qxJson &list, std::size_t index, float fallback)
{
    return list.is_array() && index < list.size() ? numberOr(list[index], fallback) : fallback;
}

/// The transform of a texture, for coordinates that begin at the bottom of the picture.
qxSurface::TextureMatrix textureMatrixOf(const qxJson &textureUse)
{
    const qxJson &transform =
        qxGltfMember(qxGltfMember(textureUse, "extensions"), "KHR_texture_transform");
    const qxJson &offset = qxGltfMember(transform, "offset");
    const qxJson &scale = qxGltfMember(transform, "scale");
    const float angle = numberOr(qxGltfMember(transform, "rotation"), 0);
    const float across[2] = {std::cos(angle) * entryOr(scale, 0, 1),
                             std::sin(angle) * entryOr(scale, 1, 1)};
    const float down[2] = {-std::sin(angle) * entryOr(scale, 0, 1),
                           std::cos(angle) * entryOr(scale, 1, 1)};
    return {across[0], -across[1], across[1] + entryOr(offset, 0, 0),
            -down[0],  down[1],    1 - down[1] - entryOr(offset, 1, 0)};
}

/// How the picture of the base colour lies on the surface.
void setPicturePlace(qxSurface &surface, const qxGltfModel &model, const qxJson &material)
{
    const qxJson &use =
        qxGltfMember(qxGltfMember(material, "pbrMetallicRoughness"), "baseColorTexture");
    const int texture = qxGltfIndex(use, "index");
    if (texture < 0)
        return;
    surface.textureMatrix = textureMatrixOf(use);
    const qxJson &json = model.document.json;
    const int sampler =
        qxGltfIndex(qxGltfSection(json, "textures")[std::size_t(texture)], "sampler");
    if (sampler < 0)
        return;
    const qxJson &sides = qxGltfSection(json, "samplers")[std::size_t(sampler)];
    surface.wrapS = wrapOf(sides, "wrapS");
    surface.wrapT = wrapOf(sides, "wrapT");
}

/// Metals reflect in their own colour and hardly scatter light, all else the other way round.
void setHighlight(const osg::SimpleMaterialPtr &material, const qxSurface &surface)
{
    const osg::Color3f base = material->getDiffuse();
    const float metal = std::clamp(surface.metallic, 0.0f, 1.0f);
    const float dull = std::clamp(surface.roughness, 0.1f, 1.0f);
    const auto mixed = [metal](float colour) { return 0.04f + (colour - 0.04f) * metal; };
    material->setSpecular(osg::Color3f(mixed(base.red()), mixed(base.green()), mixed(base.blue())));
    material->setShininess(std::min(2.0f / (dull * dull * dull * dull) - 1.0f, 128.0f));
}

osg::Color3f colourOf(const std::vector<double> &values)
{
    return {float(values[0]), float(values[1]), float(values[2])};
}

void setColours(const osg::SimpleMaterialPtr &material, const tinygltf::Material &values)
{
    const std::vector<double> &base = values.pbrMetallicRoughness.baseColorFactor;
    material->setAmbient(colourOf(base));
    material->setDiffuse(colourOf(base));
    material->setEmission(colourOf(values.emissiveFactor));
    const bool usesAlpha = values.alphaMode == "BLEND" || values.alphaMode == "MASK";
    material->setTransparency(usesAlpha ? 1.0f - float(base[3]) : 0.0f);
}

osg::SimpleMaterialPtr create(const osg::ImagePtr &image)
{
    if (image == osg::NullFC)
        return osg::SimpleMaterial::create();
    const osg::SimpleTexturedMaterialPtr material = osg::SimpleTexturedMaterial::create();
    const osg::CPEditor edit(material,
                             osg::SimpleTexturedMaterial::ImageFieldMask
                                 | osg::SimpleTexturedMaterial::EnvModeFieldMask);
    material->setImage(image);
    material->setEnvMode(GL_MODULATE);
    return material;
}

osg::SimpleMaterialPtr makeMaterial(const tinygltf::Material &values, const qxSurface &surface,
                                    const osg::ImagePtr &image)
{
    const osg::SimpleMaterialPtr material = create(image);
    const osg::CPEditor edit(material);
    setColours(material, values);
    setHighlight(material, surface);
    surface.setTo(material);
    return material;
}

} // namespace

std::vector<qxGltfMaterialRef> qxGltfMaterials(qxGltfModel &model)
{
    qxGltfImages images(model);
    const qxJson &list = qxGltfSection(model.document.json, "materials");
    const std::vector<std::string> names = qxGltfShownNames(list);
    std::vector<qxGltfMaterialRef> materials;
    for (tinygltf::Material values : model.typed.materials) {
        const std::size_t index = materials.size();
        setFactorsWithoutPictures(values, list[index]);
        const int texture = values.pbrMetallicRoughness.baseColorTexture.index;
        const qxGltfExtras extras(int(index), list[index], model.warnings, "material");
        qxSurface surface = surfaceOf(values, list[index]);
        surface.environment = extras.flag(qxGltfKeys::environment, false);
        setPicturePlace(surface, model, list[index]);
        materials.emplace_back(
            osg::MaterialPtr(makeMaterial(values, surface, images.ofTexture(texture))));
        if (qxGltfMember(list[index], "name").is_string())
            osg::setName(materials.back().get(), names[index]);
    }
    return materials;
}

QMap<QString, int> qxGltfHiddenPictures(const qxJson &materials)
{
    QMap<QString, int> counts;
    for (const HiddenPicture &picture : {_metallicRoughness, _emissive, _normal, _occlusion}) {
        const auto isPictured = [&](const qxJson &material) { return picture.isIn(material); };
        const auto count = std::count_if(materials.begin(), materials.end(), isPictured);
        if (count > 0)
            counts[picture.words] = int(count);
    }
    return counts;
}

qxGltfMaterialRef qxGltfDefaultMaterial()
{
    tinygltf::Material values;
    values.emissiveFactor = {0, 0, 0};
    return qxGltfMaterialRef(makeMaterial(values, surfaceOf(values, qxJson()), osg::ImagePtr()));
}
