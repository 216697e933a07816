#include "Files/Gltf/Read/qxGltfElements.h"

#include "Files/Gltf/Common/qxGltfCheckValues.h"

#include <map>

namespace {

int componentSize(qint64 type)
{
    static const std::map<qint64, int> sizes{{5120, 1}, {5121, 1}, {5122, 2},
                                             {5123, 2}, {5125, 4}, {5126, 4}};
    const auto found = sizes.find(type);
    return found == sizes.end() ? 0 : found->second;
}

/// The bytes of an element, and how many components are read of it.
struct Shape {
    qint64 size;
    int components;
};

/// Columns of small matrices begin at multiples of four bytes, so that their components are not one
/// after the other.
Shape shapeOf(const QString &called, const qxJson &accessor, int component)
{
    static const std::map<std::string, int> vectors{
        {"SCALAR", 1}, {"VEC2", 2}, {"VEC3", 3}, {"VEC4", 4}};
    static const std::map<std::string, int> matrices{{"MAT2", 2}, {"MAT3", 3}, {"MAT4", 4}};
    const qxJson &type = qxGltfMember(accessor, "type");
    const std::string name = type.is_string() ? type.get<std::string>() : std::string();
    const auto vector = vectors.find(name);
    const auto matrix = matrices.find(name);
    if (vector != vectors.end())
        return {vector->second * component, vector->second};
    if (matrix == matrices.end())
        throw qxGltfError(qxFileText::tr("%1 has an unknown type").arg(called));
    const int side = matrix->second;
    return {side * ((side * component + 3) / 4 * 4), side == 4 ? 16 : 0};
}

int componentType(const QString &called, const qxJson &object)
{
    const qint64 type = qxGltfCheckedCount(called, object, "componentType", 0);
    if (componentSize(type) == 0)
        throw qxGltfError(qxFileText::tr("%1 has an unknown component type").arg(called));
    return int(type);
}

/// Places elements of that many bytes where the buffer view of `place` has them.
void setPlace(qxGltfElements &elements, const QString &called, const qxJson &place,
              const qxJson &document, qint64 size)
{
    const qxJson &views = qxGltfSection(document, "bufferViews");
    qxGltfCheckIndexValue(called, qxGltfMember(place, "bufferView"), views, "buffer view");
    const qxJson &view = views[place["bufferView"].get<std::size_t>()];
    const qint64 offset = qxGltfCheckedCount(called, place, "byteOffset", 0);
    const qint64 length = qxGltfCheckedCount(called, view, "byteLength", 0);
    elements.view = place["bufferView"].get<int>();
    elements.begin = offset;
    elements.stride = qxGltfCheckedCount(called, view, "byteStride", size);
    const bool fits = elements.count == 0
        || (offset + size <= length
            && elements.count - 1 <= (length - offset - size) / elements.stride);
    if (!fits)
        throw qxGltfError(qxFileText::tr("%1 has %2 elements, more than its buffer view holds")
                              .arg(called)
                              .arg(elements.count));
}

/// Indices and values of sparse accessors are packed: the format knows no stride there.
void setPacked(qxGltfElements &elements, const QString &called, const qxJson &place,
               const qxJson &document, qint64 size)
{
    setPlace(elements, called, place, document, size);
    const qxJson &view = document["bufferViews"][place["bufferView"].get<std::size_t>()];
    if (!qxGltfMember(view, "byteStride").is_null())
        throw qxGltfError(
            qxFileText::tr("%1 replaces elements from a buffer view with a stride").arg(called));
}

qxGltfAccessor::Sparse sparseOf(const QString &called, const qxJson &sparse,
                                const qxGltfElements &replaced, qint64 size, const qxJson &document)
{
    if (!sparse.is_object())
        throw qxGltfError(qxFileText::tr("%1: \"sparse\" is no object").arg(called));
    qxGltfAccessor::Sparse result;
    result.values = replaced;
    result.values.count = qxGltfCheckedCount(called, sparse, "count", -1);
    if (result.values.count < 0 || result.values.count > replaced.count)
        throw qxGltfError(qxFileText::tr("%1 replaces more elements than it has").arg(called));
    const qxJson &indices = qxGltfMember(sparse, "indices");
    result.indices.count = result.values.count;
    result.indices.type = componentType(called, indices);
    result.indices.components = 1;
    setPacked(result.indices, called, indices, document, componentSize(result.indices.type));
    setPacked(result.values, called, qxGltfMember(sparse, "values"), document, size);
    return result;
}

} // namespace

qxGltfAccessor qxGltfAccessor::of(const qxJson &document, int index)
{
    const qxJson &json = qxGltfSection(document, "accessors")[std::size_t(index)];
    const QString called = qxGltfLabel("accessor", index, json);
    qxGltfAccessor accessor;
    qxGltfElements &elements = accessor.elements;
    elements.count = qxGltfCheckedCount(called, json, "count", -1);
    if (elements.count < 0)
        throw qxGltfError(qxFileText::tr("%1 states no usable \"count\"").arg(called));
    elements.type = componentType(called, json);
    const Shape shape = shapeOf(called, json, componentSize(elements.type));
    elements.components = shape.components;
    accessor.isNormalized = qxGltfMember(json, "normalized") == true;
    if (!qxGltfMember(json, "bufferView").is_null())
        setPlace(elements, called, json, document, shape.size);
    const qxJson &sparse = qxGltfMember(json, "sparse");
    if (!sparse.is_null())
        accessor.sparse = sparseOf(called, sparse, elements, shape.size, document);
    return accessor;
}
