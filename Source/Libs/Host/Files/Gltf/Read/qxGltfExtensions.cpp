#include "Files/Gltf/Read/qxGltfExtensions.h"

#include "qxText.h"

const QStringList &qxGltfUnderstoodExtensions()
{
    static const QStringList names{
        "EXT_meshopt_compression",
        "EXT_texture_webp",
        "KHR_draco_mesh_compression",
        "KHR_lights_punctual",
        "KHR_materials_anisotropy",
        "KHR_materials_clearcoat",
        "KHR_materials_diffuse_transmission",
        "KHR_materials_emissive_strength",
        "KHR_materials_ior",
        "KHR_materials_iridescence",
        "KHR_materials_sheen",
        "KHR_materials_specular",
        "KHR_materials_transmission",
        "KHR_materials_unlit",
        "KHR_materials_variants",
        "KHR_materials_volume",
        "KHR_mesh_quantization",
        "KHR_node_visibility",
        "KHR_texture_transform",
    };
    return names;
}

QStringList qxGltfExtensionNames(const qxJson &document, const char *list)
{
    QStringList names;
    for (const qxJson &name : qxGltfSection(document, list)) {
        if (name.is_string())
            names << qxText::fromUtf8(name.get<std::string>());
    }
    return names;
}

QStringList qxGltfNotUnderstood(const qxJson &document, const char *list)
{
    QStringList names;
    for (const QString &name : qxGltfExtensionNames(document, list)) {
        if (!qxGltfUnderstoodExtensions().contains(name))
            names << name;
    }
    return names;
}
