#include "Files/Gltf/Read/qxGltfPrimitive.h"

#include "Files/Gltf/Read/qxGltfAccessors.h"
#include "Files/Gltf/Read/qxGltfDraco.h"
#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"

namespace {

const char *const _compression = "KHR_draco_mesh_compression";

const qxJson &compressionOf(const qxJson &primitive)
{
    return qxGltfMember(qxGltfMember(primitive, "extensions"), _compression);
}

/// What turns integers of the accessor into the numbers that they stand for.
float scaleOf(const qxGltfAccessor &accessor)
{
    const int type = accessor.elements.type;
    if (!accessor.isNormalized)
        return 1.0f;
    if (type == TINYGLTF_COMPONENT_TYPE_BYTE || type == TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE)
        return type == TINYGLTF_COMPONENT_TYPE_BYTE ? 1 / 127.0f : 1 / 255.0f;
    return type == TINYGLTF_COMPONENT_TYPE_SHORT ? 1 / 32767.0f : 1 / 65535.0f;
}

} // namespace

std::shared_ptr<const qxGltfDraco> qxGltfDracoMeshes::of(int view)
{
    if (m_last && view == m_view)
        return m_last;
    m_last.reset();
    m_last = std::make_shared<const qxGltfDraco>(m_model.bytesOfView(view), m_model.budget);
    m_view = view;
    return m_last;
}

qxGltfPrimitive::qxGltfPrimitive(qxGltfModel &model, Place place, qxGltfDracoMeshes &meshes)
    : m_model(model),
      m_typed(model.typed.meshes[std::size_t(place.mesh)].primitives[std::size_t(place.primitive)]),
      m_json(model.document.json["meshes"][std::size_t(place.mesh)]["primitives"]
                                [std::size_t(place.primitive)]),
      m_indices(qxGltfIndex(m_json, "indices"))
{
    const qxJson &compression = compressionOf(m_json);
    if (compression.is_null())
        return;
    try {
        m_compressed = meshes.of(qxGltfIndex(compression, "bufferView"));
    } catch (const qxGltfError &error) {
        if (!canDoWithout(compression))
            throw;
        const qxJson &mesh = model.document.json["meshes"][std::size_t(place.mesh)];
        model.warnings << qxGltfPrimitiveLabel(place.mesh, mesh, place.primitive) + ": "
                + qxFileText::tr("%1; data that are not compressed are shown").arg(error.reason());
    }
}

/// Whether every accessor of what is compressed has data of its own.
bool qxGltfPrimitive::canDoWithout(const qxJson &compression) const
{
    const auto hasData = [this](int accessor) {
        const int view = qxGltfAccessor::of(m_model.document.json, accessor).elements.view;
        return view >= 0 && !m_model.bytesOfView(view).isNull();
    };
    for (const auto &[name, id] : compression["attributes"].items()) {
        if (!hasData(accessorOf(name.c_str())))
            return false;
    }
    return m_model.isOptional(_compression) && (m_indices < 0 || hasData(m_indices));
}

/// Compressed triangles are a list, also those that are stated to be a strip.
int qxGltfPrimitive::mode() const
{
    return m_compressed ? TINYGLTF_MODE_TRIANGLES : m_typed.mode;
}

int qxGltfPrimitive::accessorOf(const char *attribute) const
{
    const auto found = m_typed.attributes.find(attribute);
    return found == m_typed.attributes.end() ? -1 : found->second;
}

int qxGltfPrimitive::components(const char *attribute) const
{
    const int accessor = accessorOf(attribute);
    return accessor < 0 ? 0
                        : qxGltfAccessor::of(m_model.document.json, accessor).elements.components;
}

int qxGltfPrimitive::compressedId(const char *attribute) const
{
    if (!m_compressed)
        return -1;
    return qxGltfIndex(qxGltfMember(compressionOf(m_json), "attributes"), attribute);
}

qint64 qxGltfPrimitive::vertices() const
{
    const int accessor = accessorOf("POSITION");
    return accessor < 0 ? 0 : countOf("POSITION");
}

qint64 qxGltfPrimitive::countOf(const char *attribute) const
{
    return compressedId(attribute) >= 0
        ? m_compressed->vertices()
        : qxGltfAccessor::of(m_model.document.json, accessorOf(attribute)).elements.count;
}

std::vector<float> qxGltfPrimitive::values(const char *attribute, int components) const
{
    const int accessor = accessorOf(attribute);
    if (accessor < 0)
        return {};
    if (this->components(attribute) != components)
        throw qxGltfError(qxFileText::tr("%1 has the wrong number of components").arg(attribute));
    if (countOf(attribute) != vertices())
        throw qxGltfError(qxFileText::tr("%1 is not there for every vertex").arg(attribute));
    return compressedId(attribute) >= 0 ? compressedValues(attribute, components)
                                        : qxGltfFloats(m_model, accessor);
}

std::vector<float> qxGltfPrimitive::compressedValues(const char *attribute, int components) const
{
    const unsigned int id = unsigned(compressedId(attribute));
    if (!m_compressed->has(id, components))
        throw qxGltfError(
            qxFileText::tr("%1 is not in the compressed data as it is stated").arg(attribute));
    const auto stated = qxGltfAccessor::of(m_model.document.json, accessorOf(attribute));
    return m_compressed->values(id, scaleOf(stated));
}

bool qxGltfPrimitive::hasTarget(int target, const char *attribute) const
{
    return m_typed.targets[std::size_t(target)].count(attribute) > 0;
}

std::vector<float> qxGltfPrimitive::targetValues(int target, const char *attribute) const
{
    if (!hasTarget(target, attribute))
        return std::vector<float>(std::size_t(3 * vertices()));
    const int accessor = m_typed.targets[std::size_t(target)].at(attribute);
    const qxGltfElements elements = qxGltfAccessor::of(m_model.document.json, accessor).elements;
    const QString called = qxFileText::tr("%1 of morph target %2").arg(attribute).arg(target);
    if (elements.components != 3)
        throw qxGltfError(qxFileText::tr("%1 has the wrong number of components").arg(called));
    if (elements.count != vertices())
        throw qxGltfError(qxFileText::tr("%1 is not there for every vertex").arg(called));
    return qxGltfFloats(m_model, accessor);
}

qint64 qxGltfPrimitive::indexCount() const
{
    return m_compressed ? m_compressed->corners()
                        : qxGltfAccessor::of(m_model.document.json, m_indices).elements.count;
}

std::vector<std::uint32_t> qxGltfPrimitive::indices() const
{
    std::vector<std::uint32_t> all =
        m_compressed ? m_compressed->indices() : qxGltfIndices(m_model, m_indices);
    const qint64 there = vertices();
    const auto beyond = std::find_if(all.begin(), all.end(),
                                     [there](std::uint32_t index) { return index >= there; });
    if (beyond != all.end())
        throw qxGltfError(
            qxFileText::tr("index %1 is used, there are %2 vertices").arg(*beyond).arg(there));
    return all;
}
