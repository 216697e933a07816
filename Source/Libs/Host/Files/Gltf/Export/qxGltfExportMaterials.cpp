#include "Files/Gltf/Export/qxGltfExportMaterials.h"

#include "Files/Gltf/Read/qxGltfImages.h"
#include "Files/Gltf/Read/qxGltfMaterials.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Materials/qxSurface.h"
#include "Pictures/qxEncodedPicture.h"
#include "qxText.h"

#include <algorithm>

namespace {

const char *const _webp = "EXT_texture_webp";

bool isWebp(const QByteArray &bytes)
{
    return bytes.startsWith("RIFF");
}

const char *mimeTypeOf(const QByteArray &bytes)
{
    if (isWebp(bytes))
        return "image/webp";
    return bytes.startsWith("\x89PNG") ? "image/png" : "image/jpeg";
}

bool isTexture(const std::string &key, const qxJson &value)
{
    const std::string ending = "exture";
    return key.size() > ending.size()
        && key.compare(key.size() - ending.size(), ending.size(), ending) == 0 && value.is_object();
}

bool clampNumber(qxJson &number)
{
    const double stated = number.get<double>();
    const double clamped = std::clamp(stated, 0.0, 1.0);
    if (clamped == stated)
        return false;
    number = clamped;
    return true;
}

/// Whether glTF demands numbers from 0 to 1.
bool isFraction(const std::string &key)
{
    const std::string ending = "Factor";
    return key.size() > ending.size() && key != "thicknessFactor" && key != "specularColorFactor"
        && key.compare(key.size() - ending.size(), ending.size(), ending) == 0;
}

/// Brings numbers into the range that glTF states for them; false when all were.
bool clampFactors(qxJson &object)
{
    bool isClamped = false;
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->is_object() && member.key() != "extras") {
            isClamped = clampFactors(*member) || isClamped;
        } else if (isFraction(member.key()) && member->is_number()) {
            isClamped = clampNumber(*member) || isClamped;
        } else if (isFraction(member.key()) && member->is_array()) {
            for (qxJson &number : *member)
                isClamped = clampNumber(number) || isClamped;
        }
    }
    return isClamped;
}

bool isColour(const std::string &texture)
{
    const auto &kinds = qxSurface::pictureKinds();
    return std::any_of(kinds.begin(), kinds.end(), [&texture](const qxSurface::PictureKind &kind) {
        return kind.isColour && qxGltfPlace(kind.place).back() == texture;
    });
}

} // namespace

/// What is only used as colours may lose what eyes do not see.
void qxGltfExportMaterials::findUses()
{
    for (const qxJson &material : qxGltfSection(m_model.document.json, "materials"))
        findUses(material, material.value("alphaMode", "OPAQUE") != "OPAQUE");
}

void qxGltfExportMaterials::findUses(const qxJson &object, bool usesAlpha)
{
    for (const auto &[key, value] : object.items()) {
        if (!value.is_object() || key == "extras")
            continue;
        const int index = isTexture(key, value) ? qxGltfIndex(value, "index") : -1;
        if (index < 0) {
            findUses(value, usesAlpha);
            continue;
        }
        const qxJson &texture = m_model.document.json["textures"][std::size_t(index)];
        const qxGltfPictureContent content = !isColour(key) ? qxGltfPictureContent::Numbers
            : usesAlpha && key == "baseColorTexture"        ? qxGltfPictureContent::ColoursAndAlpha
                                                            : qxGltfPictureContent::Colours;
        for (const int source : qxGltfTextureSources(texture)) {
            const qxJson &image = m_model.document.json["images"][std::size_t(source)];
            qxGltfPictureContent &known = m_uses[qxGltfPictureKey(image)];
            known = std::max(known, content);
        }
    }
}

/// The picture as it is written.
QByteArray qxGltfExportMaterials::written(const QByteArray &bytes, const std::string &key) const
{
    const auto use = m_uses.find(key);
    return use == m_uses.end() ? bytes : qxGltfCompressPicture(bytes, use->second);
}

int qxGltfExportMaterials::material(int index)
{
    if (index < 0)
        return -1;
    const auto known = m_materials.find(index);
    if (known != m_materials.end())
        return known->second;
    qxJson material = m_model.document.json["materials"][std::size_t(index)];
    m_tidy.clean(material);
    takeTextures(material);
    if (clampFactors(material))
        m_result.losses += {"material", qxGltfLabel("material", index, material), false,
                            "numbers that glTF forbids are the nearest that it allows"};
    qxJson &materials = m_json["materials"];
    materials.push_back(material);
    return m_materials[index] = int(materials.size()) - 1;
}

int qxGltfExportMaterials::plainMaterial()
{
    if (m_plain < 0) {
        m_json["materials"].push_back({{"name", qxGltfDefaultName}});
        m_plain = int(m_json["materials"].size()) - 1;
    }
    return m_plain;
}

void qxGltfExportMaterials::rename(int index, const std::string &name)
{
    const auto copy = m_materials.find(index);
    if (copy != m_materials.end())
        m_json["materials"][std::size_t(copy->second)]["name"] = name;
}

/// Textures stand in members whose names say so, also in those of extensions.
void qxGltfExportMaterials::takeTextures(qxJson &object)
{
    std::vector<std::string> missing;
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (!member->is_object() || member.key() == "extras")
            continue;
        if (!isTexture(member.key(), *member)) {
            takeTextures(*member);
            continue;
        }
        const int index = qxGltfIndex(*member, "index");
        const std::optional<int> copy = index < 0 ? std::nullopt : texture(index);
        if (copy)
            (*member)["index"] = *copy;
        else
            missing.push_back(member.key());
    }
    for (const std::string &key : missing)
        object.erase(key);
}

/// The texture in the export; nothing when no picture of it can be shown.
std::optional<int> qxGltfExportMaterials::texture(int index)
{
    const auto [known, isNew] = m_textures.try_emplace(index);
    if (!isNew)
        return known->second;
    const qxJson &from = m_model.document.json["textures"][std::size_t(index)];
    qxJson texture = qxJson::object();
    qxGltfDescribe(texture, from, m_tidy);
    if (qxGltfIndex(from, "sampler") >= 0)
        texture["sampler"] = sampler(qxGltfIndex(from, "sampler"));
    bool isShown = false;
    for (const int source : qxGltfTextureSources(from)) {
        const std::optional<int> picture = image(source);
        if (!picture || (isShown && m_options.extent == qxExportOptions::Everything))
            continue;
        isShown = true;
        const bool isInWebp = m_json["images"][std::size_t(*picture)]["mimeType"] == "image/webp";
        qxJson &holder = isInWebp ? texture["extensions"][_webp] : texture;
        if (!holder.contains("source"))
            holder["source"] = *picture;
    }
    if (!isShown)
        return known->second;
    m_needsWebp = m_needsWebp || !texture.contains("source");
    qxJson &textures = m_json["textures"];
    textures.push_back(texture);
    return known->second = int(textures.size()) - 1;
}

std::optional<int> qxGltfExportMaterials::image(int index)
{
    const qxJson &from = m_model.document.json["images"][std::size_t(index)];
    const auto [known, isNew] = m_images.try_emplace(qxGltfPictureKey(from));
    if (!isNew)
        return known->second;
    try {
        const QByteArray bytes = qxGltfPictureBytes(m_model, from);
        const QString flaw = qxEncodedPicture(bytes).flaw();
        if (!flaw.isEmpty())
            throw qxGltfError(flaw);
        const QByteArray kept = written(bytes, known->first);
        m_result.pictures.before += bytes.size();
        m_result.pictures.after += kept.size();
        qxJson image = qxJson::object();
        qxGltfDescribe(image, from, m_tidy);
        image["mimeType"] = mimeTypeOf(kept);
        image["bufferView"] = m_bin.addView(kept);
        qxJson &images = m_json["images"];
        images.push_back(image);
        return known->second = int(images.size()) - 1;
    } catch (const qxGltfError &error) {
        m_result.losses += {"picture", qxGltfLabel("image", index, from), true, error.reason()};
        return known->second;
    }
}

int qxGltfExportMaterials::sampler(int index)
{
    const auto [known, isNew] = m_samplers.try_emplace(index);
    if (!isNew)
        return known->second;
    qxJson sampler = m_model.document.json["samplers"][std::size_t(index)];
    m_tidy.clean(sampler);
    qxJson &samplers = m_json["samplers"];
    samplers.push_back(sampler);
    return known->second = int(samplers.size()) - 1;
}
