#include "Files/Gltf/Read/qxGltfMaterials.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfNames.h"
#include "Files/Gltf/Common/qxGltfPictureUse.h"
#include "Files/Gltf/Read/qxGltfImages.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Materials/qxSurface.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>

#include <algorithm>
#include <cmath>

namespace {

float finiteOr(const qxJson &value, float fallback)
{
    const float number = value.is_number() ? value.get<float>() : fallback;
    return std::isfinite(number) ? number : fallback;
}

float entryOr(const qxJson &list, std::size_t index, float fallback)
{
    return list.is_array() && index < list.size() ? finiteOr(list[index], fallback) : fallback;
}

/// Numbers that the file does not give keep their values.
void readNumbers(qxSurface &surface, const qxJson &material)
{
    static const std::vector<qxGltfPlace> places = [] {
        std::vector<qxGltfPlace> all;
        for (const qxSurface::Number &row : qxSurface::numbers())
            all.emplace_back(row.place);
        return all;
    }();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const qxJson &value = qxGltfAt(material, places[i]);
        if (value.is_null())
            continue;
        const qxSurface::Number &row = qxSurface::numbers()[i];
        std::vector<float> numbers = row.of(surface);
        for (std::size_t k = 0; k < numbers.size(); ++k)
            numbers[k] = row.colour ? entryOr(value, k, numbers[k]) : finiteOr(value, numbers[k]);
        row.set(surface, numbers.data());
    }
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

/// The transform of a texture, for coordinates that begin at the bottom of the picture.
qxSurfacePicture::Matrix matrixOf(const qxJson &transform)
{
    const qxJson &offset = qxGltfMember(transform, "offset");
    const qxJson &scale = qxGltfMember(transform, "scale");
    const float angle = finiteOr(qxGltfMember(transform, "rotation"), 0);
    const float across[2] = {std::cos(angle) * entryOr(scale, 0, 1),
                             std::sin(angle) * entryOr(scale, 1, 1)};
    const float down[2] = {-std::sin(angle) * entryOr(scale, 0, 1),
                           std::cos(angle) * entryOr(scale, 1, 1)};
    return {across[0], -across[1], across[1] + entryOr(offset, 0, 0),
            -down[0],  down[1],    1 - down[1] - entryOr(offset, 1, 0)};
}

/// A picture without its image: how it lies on the surface.
qxSurfacePicture placedPicture(const qxJson &document, const qxJson &use)
{
    qxSurfacePicture picture;
    const qxJson &transform =
        qxGltfMember(qxGltfMember(use, "extensions"), "KHR_texture_transform");
    picture.matrix = matrixOf(transform);
    for (const qxJson *from : {&use, &transform}) {
        const qxJson &set = qxGltfMember(*from, "texCoord");
        if (set.is_number_unsigned())
            picture.texCoords = osg::UInt32(std::min<std::uint64_t>(set.get<std::uint64_t>(), 255));
    }
    const qxJson &texture =
        qxGltfSection(document, "textures")[std::size_t(qxGltfIndex(use, "index"))];
    const int sampler = qxGltfIndex(texture, "sampler");
    if (sampler < 0)
        return picture;
    const qxJson &sides = qxGltfSection(document, "samplers")[std::size_t(sampler)];
    picture.wrapS = wrapOf(sides, "wrapS");
    picture.wrapT = wrapOf(sides, "wrapT");
    return picture;
}

void readPictures(qxSurface &surface, const qxJson &material, const qxJson &document,
                  qxGltfImages &images)
{
    for (std::size_t role = 0; role < surface.pictures.size(); ++role) {
        const qxJson &use = qxGltfPictureUse(material, role);
        const int texture = qxGltfIndex(use, "index");
        if (texture < 0)
            continue;
        surface.pictures[role] = placedPicture(document, use);
        surface.pictures[role].image =
            images.ofTexture(texture, qxSurface::pictureKinds()[role].isColour);
    }
}

qxSurface surfaceOf(const qxJson &material)
{
    qxSurface surface;
    readNumbers(surface, material);
    surface.doubleSided = qxGltfMember(material, "doubleSided") == true;
    surface.unlit =
        !qxGltfMember(qxGltfMember(material, "extensions"), "KHR_materials_unlit").is_null();
    const qxJson &mode = qxGltfMember(material, "alphaMode");
    if (mode == "BLEND")
        surface.alphaMode = qxSurface::Blend;
    else if (mode == "MASK")
        surface.alphaMode = qxSurface::Mask;
    return surface;
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

osg::SimpleMaterialPtr makeMaterial(const tinygltf::Material &values, const qxSurface &surface)
{
    const osg::SimpleMaterialPtr material = create(surface.pictures[qxSurface::BaseColour].image);
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
    for (const tinygltf::Material &values : model.typed.materials) {
        const std::size_t index = materials.size();
        const qxGltfExtras extras(int(index), list[index], model.warnings, "material");
        qxSurface surface = surfaceOf(list[index]);
        surface.environment = extras.flag(qxGltfKeys::environment, false);
        readPictures(surface, list[index], model.document.json, images);
        materials.emplace_back(osg::MaterialPtr(makeMaterial(values, surface)));
        if (qxGltfMember(list[index], "name").is_string())
            osg::setName(materials.back().get(), names[index]);
    }
    return materials;
}

qxGltfMaterialRef qxGltfDefaultMaterial()
{
    tinygltf::Material values;
    values.emissiveFactor = {0, 0, 0};
    return qxGltfMaterialRef(makeMaterial(values, qxSurface()));
}
