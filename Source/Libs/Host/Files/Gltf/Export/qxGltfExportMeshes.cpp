#include "Files/Gltf/Export/qxGltfExportMeshes.h"

#include "Files/Gltf/Export/qxGltfCompress.h"
#include "Files/Gltf/Export/qxGltfVertexValues.h"
#include "Files/Gltf/Read/qxGltfModel.h"

namespace {

const char *const _targetAttributes[] = {"POSITION", "NORMAL", "TANGENT"};

/// Whether what is seen through its triangles depends on their order.
bool isBlended(const qxJson &primitive, const qxJson &document)
{
    const int material = qxGltfIndex(primitive, "material");
    return material >= 0
        && document["materials"][std::size_t(material)].value("alphaMode", "") == "BLEND";
}

/// What a primitive is made of, as text.
std::string contentOf(const qxJson &primitive)
{
    const qxJson content = {
        qxGltfMember(primitive, "attributes"), qxGltfMember(primitive, "indices"),
        qxGltfMember(primitive, "mode"), qxGltfMember(primitive, "targets"),
        qxGltfMember(qxGltfMember(primitive, "extensions"), "KHR_draco_mesh_compression")};
    return content.dump();
}

/// The values of an attribute, also if they are compressed.
qxGltfPacked valuesOf(const qxGltfModel &model, const qxGltfPrimitive &from,
                      const std::string &name, int accessor)
{
    qxGltfPacked values = qxGltfPacked::of(model, accessor);
    if (from.isCompressed(name.c_str()))
        values.setFloats(from.values(name.c_str(), values.components()));
    return values;
}

qxGltfPrimitiveData dataOf(const qxGltfModel &model, const qxGltfPrimitive &from)
{
    qxGltfPrimitiveData data;
    for (const auto &[name, accessor] : from.typed().attributes) {
        qxGltfPacked values;
        if (qxGltfIsShownAttribute(name))
            values = valuesOf(model, from, name, accessor);
        if (values.count > 0 && qxGltfMendVertices(name, values))
            data.attributes[name] = values;
    }
    for (const auto &target : from.typed().targets) {
        data.targets.emplace_back();
        for (const char *name : _targetAttributes) {
            const auto moved = target.find(name);
            if (moved == target.end() || data.attributes.count(name) == 0)
                continue;
            qxGltfPacked values = qxGltfPacked::of(model, moved->second);
            if (qxGltfMendVertices(std::string(), values))
                data.targets.back()[name] = values;
        }
    }
    if (from.hasIndices())
        data.indices = from.indices();
    return data;
}

} // namespace

int qxGltfExportMeshes::mesh(int index, const std::vector<int> &parts, const Dress &dress)
{
    const auto [known, isNew] = m_meshes.try_emplace({index, parts}, -1);
    if (!isNew)
        return known->second;
    const qxJson &from = m_model.document.json["meshes"][std::size_t(index)];
    qxJson mesh = qxJson::object();
    qxGltfDescribe(mesh, from, m_tidy);
    for (const int part : parts) {
        qxJson copy = primitive(index, part);
        if (copy.is_null())
            continue;
        dress(copy, index, part);
        mesh["primitives"].push_back(copy);
    }
    if (!mesh.contains("primitives"))
        return -1;
    if (from.contains("weights"))
        mesh["weights"] = from["weights"];
    qxJson &meshes = m_json["meshes"];
    meshes.push_back(mesh);
    return known->second = int(meshes.size()) - 1;
}

/// Null for one that shows nothing, unless the others have to keep their places.
qxJson qxGltfExportMeshes::primitive(int mesh, int part)
{
    const qxJson &from =
        m_model.document.json["meshes"][std::size_t(mesh)]["primitives"][std::size_t(part)];
    qxJson primitive = qxJson::object();
    try {
        const qxGltfPrimitive data(m_model, {mesh, part}, m_draco);
        if (!data.has("POSITION") || data.vertices() == 0)
            return placeholder();
        if (m_options.compress) {
            addCompressed(primitive, data, isBlended(from, m_model.document.json));
        } else {
            addAttributes(primitive, data);
            addIndices(primitive, data);
            addTargets(primitive, data);
        }
        if (data.mode() != TINYGLTF_MODE_TRIANGLES)
            primitive["mode"] = data.mode();
    } catch (const qxGltfError &error) { // the scene does without it, too
        m_result.losses +=
            {"mesh",
             qxGltfPrimitiveLabel(mesh, m_model.document.json["meshes"][std::size_t(mesh)], part),
             true, error.reason()};
        return placeholder();
    }
    const qxJson extras = m_tidy.extras(from);
    if (!extras.is_null())
        primitive["extras"] = extras;
    return primitive;
}

/// A triangle of one point.
qxJson qxGltfExportMeshes::placeholder()
{
    if (m_options.extent == qxExportOptions::Shown)
        return qxJson();
    qxGltfPacked zeros = qxGltfPacked::of(std::vector<float>(9), 3);
    zeros.bytes = QByteArray();
    return {{"attributes", {{"POSITION", m_bin.addAccessor(zeros, qxGltfBin::Vertices, true)}}}};
}

void qxGltfExportMeshes::addAttributes(qxJson &primitive, const qxGltfPrimitive &from)
{
    for (const auto &[name, accessor] : from.typed().attributes) {
        if (!qxGltfIsShownAttribute(name))
            continue;
        int copy = -1;
        if (from.isCompressed(name.c_str())) {
            copy = attribute(name, valuesOf(m_model, from, name, accessor), false);
        } else {
            copy = copied(name, accessor, false);
        }
        if (copy >= 0)
            primitive["attributes"][name] = copy;
    }
}

void qxGltfExportMeshes::addIndices(qxJson &primitive, const qxGltfPrimitive &from)
{
    if (!from.hasIndices())
        return;
    const auto add = [&] {
        const qxGltfPacked indices = qxGltfPacked::of(from.indices());
        count(indices, indices.bytes);
        return m_bin.addAccessor(indices, qxGltfBin::Indices, false);
    };
    const int accessor = from.indexAccessor();
    if (accessor < 0) {
        primitive["indices"] = add();
        return;
    }
    const auto [known, isNew] = m_accessors.try_emplace({accessor, "indices"}, -1);
    if (isNew)
        known->second = add();
    primitive["indices"] = known->second;
}

void qxGltfExportMeshes::addTargets(qxJson &primitive, const qxGltfPrimitive &from)
{
    for (const auto &target : from.typed().targets) {
        qxJson copy = qxJson::object();
        for (const char *name : _targetAttributes) {
            const auto moved = target.find(name);
            const int accessor =
                moved == target.end() || !from.has(name) ? -1 : copied(name, moved->second, true);
            if (accessor >= 0)
                copy[name] = accessor;
        }
        primitive["targets"].push_back(copy);
    }
}

/// The copy of an accessor of the file; -1 for one whose values are of no use.
int qxGltfExportMeshes::copied(const std::string &name, int accessor, bool isTarget)
{
    const auto [known, isNew] =
        m_accessors.try_emplace({accessor, isTarget ? "target " + name : name}, -1);
    if (isNew)
        known->second = attribute(name, qxGltfPacked::of(m_model, accessor), isTarget);
    return known->second;
}

int qxGltfExportMeshes::attribute(const std::string &name, qxGltfPacked values, bool isTarget)
{
    if (!qxGltfMendVertices(isTarget ? std::string() : name, values))
        return -1;
    m_isQuantized = m_isQuantized || qxGltfIsQuantized(name, values);
    count(values, values.bytes);
    return m_bin.addAccessor(values, qxGltfBin::Vertices, name == "POSITION");
}

void qxGltfExportMeshes::count(const qxGltfPacked &values, const QByteArray &written)
{
    m_result.meshes.before += values.bytes.size();
    m_result.meshes.after += written.size();
}

/// Primitives that are made of the same stay so.
void qxGltfExportMeshes::addCompressed(qxJson &primitive, const qxGltfPrimitive &from,
                                       bool keepsOrder)
{
    const auto [known, isNew] = m_compressed.try_emplace(contentOf(from.json()));
    if (!isNew) {
        primitive = known->second;
        return;
    }
    qxGltfPrimitiveData data = dataOf(m_model, from);
    const bool areTriangles =
        from.mode() == TINYGLTF_MODE_TRIANGLES && data.indices && data.indices->size() >= 3;
    if (areTriangles) {
        data.indices->resize(data.indices->size() / 3 * 3);
        qxGltfArrange(data, keepsOrder);
    }
    for (const auto &[name, values] : data.attributes)
        primitive["attributes"][name] = compressed(name, values, false);
    for (const qxGltfPrimitiveData::Attributes &target : data.targets) {
        qxJson copy = qxJson::object();
        for (const auto &[name, values] : target)
            copy[name] = compressed(name, values, true);
        primitive["targets"].push_back(copy);
    }
    if (data.indices) {
        const std::size_t vertices = std::size_t(data.attributes.at("POSITION").count);
        const qxGltfCompressed indices =
            qxGltfCompressIndices(*data.indices, vertices, areTriangles);
        count(indices.values, indices.bytes.isNull() ? indices.values.bytes : indices.bytes);
        primitive["indices"] = m_bin.addAccessor(indices, qxGltfBin::Indices, false);
    }
    known->second = primitive;
}

int qxGltfExportMeshes::compressed(const std::string &name, const qxGltfPacked &values,
                                   bool isTarget)
{
    const qxGltfCompressed result = qxGltfCompressVertices(name, values, isTarget);
    m_isQuantized = m_isQuantized || qxGltfIsQuantized(name, result.values);
    count(values, result.bytes.isNull() ? result.values.bytes : result.bytes);
    return m_bin.addAccessor(result, qxGltfBin::Vertices, name == "POSITION");
}
