#include "Files/qxGltfMaterials.h"

#include "Files/qxGltfExtras.h"
#include "Files/qxGltfImages.h"
#include "Files/qxGltfModel.h"
#include "Files/qxGltfNames.h"
#include "Materials/qxSurface.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>

#include <algorithm>

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
    material->setTransparency(values.alphaMode == "BLEND" ? 1.0f - float(base[3]) : 0.0f);
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
    for (const tinygltf::Material &values : model.typed.materials) {
        const std::size_t index = materials.size();
        const int texture = values.pbrMetallicRoughness.baseColorTexture.index;
        const qxGltfExtras extras(int(index), list[index], model.warnings, "material");
        qxSurface surface = surfaceOf(values, list[index]);
        surface.environment = extras.flag(qxGltfKeys::environment, false);
        materials.emplace_back(
            osg::MaterialPtr(makeMaterial(values, surface, images.ofTexture(texture))));
        if (qxGltfMember(list[index], "name").is_string())
            osg::setName(materials.back().get(), names[index]);
    }
    return materials;
}

qxGltfMaterialRef qxGltfDefaultMaterial()
{
    tinygltf::Material values;
    values.emissiveFactor = {0, 0, 0};
    return qxGltfMaterialRef(makeMaterial(values, surfaceOf(values, qxJson()), osg::ImagePtr()));
}
