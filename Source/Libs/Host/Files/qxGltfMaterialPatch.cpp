#include "Files/qxGltfMaterialPatch.h"

#include "Files/qxGltfPatch.h"
#include "Files/qxGltfState.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

std::vector<float> numbersOf(const osg::Color3f &colour)
{
    return {colour.red(), colour.green(), colour.blue()};
}

void writeAlpha(qxJson &json, const qxGltfMaterialState &now)
{
    static const char *const modes[] = {"OPAQUE", "MASK", "BLEND"};
    const bool seeThrough = now.colour[3] < 1;
    json["alphaMode"] = modes[seeThrough ? qxSurface::Blend : now.surface.alphaMode];
    if (now.surface.alphaMode == qxSurface::Mask)
        json["alphaCutoff"] = qxGltfNumber(now.surface.alphaCutoff);
}

/// Opacity counts only in materials that are blended; that of others stays as the file has it.
void writeColour(qxJson &json, const qxGltfMaterialState &now)
{
    qxJson &surface = json["pbrMetallicRoughness"];
    const qxJson &old = qxGltfMember(surface, "baseColorFactor");
    qxJson colour = qxGltfNumberList(now.colour.data(), 4);
    if (now.colour[3] >= 1 && now.surface.alphaMode != qxSurface::Blend && old.is_array())
        colour[3] = old[3];
    surface["baseColorFactor"] = colour;
}

void writeSurface(qxJson &json, const qxSurface &before, const qxSurface &now)
{
    if (before.metallic != now.metallic)
        json["pbrMetallicRoughness"]["metallicFactor"] = qxGltfNumber(now.metallic);
    if (before.roughness != now.roughness)
        json["pbrMetallicRoughness"]["roughnessFactor"] = qxGltfNumber(now.roughness);
    if (before.doubleSided != now.doubleSided)
        json["doubleSided"] = now.doubleSided;
}

void writeMaterial(qxJson &json, const qxGltfMaterialState &before, const qxGltfMaterialState &now)
{
    if (before.name != now.name && now.name)
        json["name"] = *now.name;
    if (before.colour != now.colour)
        writeColour(json, now);
    if (before.emission != now.emission)
        json["emissiveFactor"] = qxGltfNumberList(now.emission.data(), 3);
    const bool alphaChanged = before.colour[3] != now.colour[3]
        || before.surface.alphaMode != now.surface.alphaMode
        || before.surface.alphaCutoff != now.surface.alphaCutoff;
    if (alphaChanged)
        writeAlpha(json, now);
    writeSurface(json, before.surface, now.surface);
}

/// How the reader understands a material of which a file says nothing.
qxGltfMaterialState unstated()
{
    qxGltfMaterialState state;
    state.colour = {1, 1, 1, 1};
    state.emission = {0, 0, 0};
    return state;
}

} // namespace

qxGltfMaterialState qxGltfMaterialState::of(const osg::SimpleMaterialPtr &material)
{
    qxGltfMaterialState state;
    if (const char *name = osg::getName(material))
        state.name = name;
    state.colour = numbersOf(material->getDiffuse());
    state.colour.push_back(1.0f - material->getTransparency());
    state.emission = numbersOf(material->getEmission());
    state.surface = qxSurface::of(material);
    return state;
}

qxGltfMaterialPatch::qxGltfMaterialPatch(qxJson &json, const qxGltfOrigin &origin,
                                         const Before &before)
    : m_json(json), m_origin(origin), m_before(before)
{
}

int qxGltfMaterialPatch::indexOf(const osg::MaterialPtr &material)
{
    if (material == osg::NullFC)
        return -1;
    const osg::UInt32 id = material.getFieldContainerId();
    const auto written = m_written.find(id);
    if (written != m_written.end())
        return written->second;
    const auto known = m_origin.materials.find(id);
    const int index = known == m_origin.materials.end() ? append(material) : known->second;
    m_written[id] = index;
    writeChanges(material, index);
    return index;
}

int qxGltfMaterialPatch::append(const osg::MaterialPtr &material)
{
    const bool plain = osg::SimpleMaterialPtr::dcast(material) != osg::NullFC;
    const osg::SimpleTexturedMaterialPtr textured = osg::SimpleTexturedMaterialPtr::dcast(material);
    if (!plain || (textured != osg::NullFC && textured->getImage() != osg::NullFC)) {
        throw qxGltfError(QString("material \"%1\" cannot be written: scene files get no new %2")
                              .arg(QString::fromStdString(qxMaterials::getName(material)),
                                   material->getTypeName()));
    }
    qxJson &materials = m_json["materials"];
    materials.push_back(qxJson::object());
    return int(materials.size()) - 1;
}

void qxGltfMaterialPatch::writeChanges(const osg::MaterialPtr &material, int index)
{
    const std::size_t place = std::size_t(index);
    const qxGltfMaterialState before = place < m_before.size() ? m_before[place] : unstated();
    writeMaterial(m_json["materials"][place], before,
                  qxGltfMaterialState::of(osg::SimpleMaterialPtr::dcast(material)));
}

void qxGltfMaterialPatch::writePool()
{
    const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
    for (osg::UInt32 i = 0; i < pool->getCount(); ++i) {
        // Reading variants makes the switch materials that they name: they need no place in a file
        // as long as nothing shows them.
        if (osg::SwitchMaterialPtr::dcast(pool->get(i)) == osg::NullFC)
            indexOf(pool->get(i));
    }
}

void qxGltfMaterialPatch::writeGeometries(const qxGltfState &state)
{
    for (const auto &geometry : state.geometries) {
        const auto part = m_origin.geometries.find(geometry.first);
        if (part == m_origin.geometries.end())
            continue;
        const int material = indexOf(geometry.second->getMaterial());
        if (material == part->second.material)
            continue;
        qxJson &primitive = m_json["meshes"][std::size_t(part->second.mesh)]["primitives"]
                                  [std::size_t(part->second.primitive)];
        if (material < 0)
            primitive.erase("material");
        else
            primitive["material"] = material;
    }
}
