#include "Files/Gltf/Read/qxGltfCheck.h"

#include "Files/Gltf/Common/qxGltfCheckValues.h"
#include "Files/Gltf/Common/qxGltfLights.h"
#include "Files/Gltf/Common/qxGltfPictureUse.h"
#include "Materials/qxSurface.h"
#include "qxText.h"

namespace {

const char *const _sections[] = {"scenes",  "nodes",       "meshes",   "materials", "textures",
                                 "images",  "samplers",    "cameras",  "skins",     "animations",
                                 "buffers", "bufferViews", "accessors"};

void checkSections(const qxJson &document)
{
    for (const char *name : _sections) {
        const qxJson &section = qxGltfMember(document, name);
        if (!section.is_null() && !section.is_array())
            throw qxGltfError(qxFileText::tr("\"%1\" is not a list").arg(name));
        for (const qxJson &entry : qxGltfSection(document, name)) {
            if (!entry.is_object())
                throw qxGltfError(
                    qxFileText::tr("\"%1\" holds something that is no object").arg(name));
        }
    }
}

void checkVersion(const qxJson &document)
{
    const qxJson &asset = qxGltfMember(document, "asset");
    const qxJson &version = qxGltfMember(asset, "version");
    if (!version.is_string())
        throw qxGltfError(qxFileText::tr("not a glTF 2.0 scene: \"asset\" states no version"));
    const qxJson &least = qxGltfMember(asset, "minVersion");
    const QString stated =
        qxText::fromUtf8((least.is_string() ? least : version).get<std::string>());
    if (!stated.startsWith("2.") || (least.is_string() && stated != "2.0"))
        throw qxGltfError(
            qxFileText::tr("made for glTF version %1, only 2.0 can be read").arg(stated));
}

void checkExtensions(const qxJson &document)
{
    for (const qxJson &required : qxGltfSection(document, "extensionsRequired")) {
        if (!required.is_string())
            throw qxGltfError(
                qxFileText::tr("\"extensionsRequired\" holds something that is no text"));
    }
}

void checkPrimitive(const QString &owner, const qxJson &primitive, const qxJson &document)
{
    if (!primitive.is_object())
        throw qxGltfError(qxFileText::tr("%1 is no object").arg(owner));
    const qxJson &accessors = qxGltfSection(document, "accessors");
    const qxJson &attributes = qxGltfMember(primitive, "attributes");
    if (!attributes.is_object())
        throw qxGltfError(qxFileText::tr("%1 has no \"attributes\"").arg(owner));
    for (const qxJson &accessor : attributes)
        qxGltfCheckIndexValue(owner, accessor, accessors, "accessor");
    qxGltfCheckDraco(owner, primitive, document);
    qxGltfCheckTargets(owner, primitive, document);
    qxGltfCheckIndex(owner, primitive, "indices", accessors, "accessor");
    qxGltfCheckIndex(owner, primitive, "material", qxGltfSection(document, "materials"),
                     "material");
    if (qxGltfCheckedCount(owner, primitive, "mode", 4) > 6)
        throw qxGltfError(qxFileText::tr("%1 has an unknown mode").arg(owner));
}

void checkMeshes(const qxJson &document)
{
    int index = 0;
    for (const qxJson &mesh : qxGltfSection(document, "meshes")) {
        const QString called = qxGltfLabel("mesh", index, mesh);
        const qxJson &primitives = qxGltfMember(mesh, "primitives");
        if (!primitives.is_array())
            throw qxGltfError(qxFileText::tr("%1 has no \"primitives\"").arg(called));
        int part = 0;
        for (const qxJson &primitive : primitives)
            checkPrimitive(qxGltfPrimitiveLabel(index, mesh, part++), primitive, document);
        ++index;
    }
}

void checkMaterials(const qxJson &document)
{
    int index = 0;
    for (const qxJson &material : qxGltfSection(document, "materials")) {
        const QString called = qxGltfLabel("material", index++, material);
        const qxJson &surface = qxGltfMember(material, "pbrMetallicRoughness");
        qxGltfCheckNumbers(called, surface, "baseColorFactor", 4);
        qxGltfCheckNumbers(called, material, "emissiveFactor", 3);
        for (std::size_t role = 0; role < qxSurface::PictureRoles; ++role) {
            const qxJson &use = qxGltfPictureUse(material, role);
            qxGltfCheckIndex(called, use, "index", qxGltfSection(document, "textures"), "texture");
        }
    }
    index = 0;
    for (const qxJson &texture : qxGltfSection(document, "textures")) {
        const QString called = qxGltfLabel("texture", index++, texture);
        const qxJson &webp = qxGltfMember(qxGltfMember(texture, "extensions"), "EXT_texture_webp");
        for (const qxJson *holder : {&texture, &webp})
            qxGltfCheckIndex(called, *holder, "source", qxGltfSection(document, "images"), "image");
        qxGltfCheckIndex(called, texture, "sampler", qxGltfSection(document, "samplers"),
                         "sampler");
    }
}

} // namespace

void qxGltfCheck(const qxJson &document)
{
    checkVersion(document);
    checkExtensions(document);
    checkSections(document);
    qxGltfCheckNodes(document);
    qxGltfCheckLights(document);
    qxGltfCheckData(document);
    checkMeshes(document);
    qxGltfCheckSkins(document);
    checkMaterials(document);
}
