#include "Files/Gltf/Write/qxGltfMeshPatch.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/Gltf/Read/qxGltfMeshes.h"
#include "Files/Gltf/Write/qxGltfGeometryWriter.h"
#include "Files/Gltf/Write/qxGltfPatch.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>

namespace {

/// The geometries of every mesh of the file that were loaded.
std::map<int, std::vector<osg::UInt32>> loadedMeshes(const qxGltfOrigin &origin)
{
    std::map<int, std::vector<osg::UInt32>> meshes;
    for (const auto &geometry : origin.geometries)
        meshes[geometry.second.mesh].push_back(geometry.first);
    const auto earlier = [&origin](osg::UInt32 a, osg::UInt32 b) {
        return origin.geometries.at(a).primitive < origin.geometries.at(b).primitive;
    };
    for (auto &mesh : meshes)
        std::sort(mesh.second.begin(), mesh.second.end(), earlier);
    return meshes;
}

} // namespace

qxGltfMeshPatch::qxGltfMeshPatch(qxJson &json, const qxGltfOrigin &origin,
                                 qxGltfMaterialPatch &materials)
    : m_json(json), m_origin(origin), m_materials(materials)
{
    for (const auto &mesh : loadedMeshes(origin))
        m_meshes.emplace(mesh.second, mesh.first);
}

std::vector<int> qxGltfMeshPatch::write(const qxGltfState &state)
{
    std::vector<int> meshes;
    for (const qxGltfNodeState &node : state.nodes)
        meshes.push_back(node.mesh.empty() ? -1 : meshOf(node, state));
    finishBuffer();
    return meshes;
}

int qxGltfMeshPatch::meshOf(const qxGltfNodeState &node, const qxGltfState &state)
{
    const auto known = m_meshes.find(node.mesh);
    if (known != m_meshes.end())
        return known->second;
    qxJson mesh = qxJson::object();
    const char *name = osg::getName(state.geometries.at(node.mesh.front()));
    if (name)
        mesh["name"] = name;
    for (const osg::UInt32 part : node.mesh) {
        qxJson primitive = primitiveOf(state.geometries.at(part), node.node);
        const char *own = osg::getName(state.geometries.at(part));
        const std::string byMesh = qxGltfPartName(name, mesh["primitives"].size() + 1);
        qxGltfSetExtra(primitive, qxGltfKeys::partName,
                       own && own != byMesh ? qxJson(own) : qxJson());
        mesh["primitives"].push_back(primitive);
    }
    const int index = int(qxGltfSection(m_json, "meshes").size());
    m_json["meshes"].push_back(mesh);
    m_meshes.emplace(node.mesh, index);
    return index;
}

qxJson qxGltfMeshPatch::primitiveOf(const osg::GeometryPtr &geometry, const osg::NodePtr &node)
{
    const auto part = m_origin.geometries.find(geometry.getFieldContainerId());
    if (part != m_origin.geometries.end())
        return m_json["meshes"][std::size_t(part->second.mesh)]["primitives"]
                     [std::size_t(part->second.primitive)];
    qxJson primitive;
    try {
        primitive = qxGltfGeometryWriter(m_json, m_bytes).write(geometry);
    } catch (const qxGltfError &error) {
        throw qxGltfError(
            qxFileText::tr("%1 cannot be written: %2").arg(qxGltfLabel(node), error.reason()));
    }
    m_materials.writeTo(primitive, geometry->getMaterial());
    return primitive;
}

/// New data lie in the file itself, whatever its kind.
void qxGltfMeshPatch::finishBuffer()
{
    if (m_bytes.isEmpty())
        return;
    m_json["buffers"].push_back(
        {{"byteLength", m_bytes.size()}, {"uri", qxGltfDataUriOf(m_bytes)}});
}
