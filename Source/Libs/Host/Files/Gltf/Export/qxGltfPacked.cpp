#include "Files/Gltf/Export/qxGltfPacked.h"

#include "Files/Gltf/Common/qxTinyGltf.h"
#include "Files/Gltf/Read/qxGltfAccessors.h"
#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

/// Calls `work` with a value of the type of a component.
template <class Work>
void asComponent(int type, const Work &work)
{
    switch (type) {
    case TINYGLTF_COMPONENT_TYPE_BYTE:
        return work(std::int8_t());
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
        return work(std::uint8_t());
    case TINYGLTF_COMPONENT_TYPE_SHORT:
        return work(std::int16_t());
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
        return work(std::uint16_t());
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT:
        return work(std::uint32_t());
    default:
        return work(float());
    }
}

template <class T>
float asFloat(T value, bool isNormalized)
{
    if (std::is_same_v<T, float> || !isNormalized)
        return float(value);
    return std::max(float(value) / float(std::numeric_limits<T>::max()), -1.0f);
}

template <class T>
T fromFloat(float value, bool isNormalized)
{
    if (std::is_same_v<T, float>)
        return T(value);
    const double limit = double(std::numeric_limits<T>::max());
    const double least =
        isNormalized && std::is_signed_v<T> ? -limit : double(std::numeric_limits<T>::lowest());
    const double scaled = isNormalized ? double(value) * limit : double(value);
    return T(std::clamp(std::round(scaled), least, limit));
}

const char *shapeOf(int components)
{
    static const char *const shapes[] = {"SCALAR", "VEC2", "VEC3", "VEC4"};
    return components == 16 ? "MAT4" : shapes[components - 1];
}

void copyElements(const qxGltfModel &model, const qxGltfElements &from, qint64 size, char *to)
{
    if (from.view < 0 || from.count == 0)
        return;
    const QByteArray bytes = model.bytesOfView(from.view);
    if (bytes.isNull())
        throw qxGltfError(qxFileText::tr("buffer %1 has no data")
                              .arg(model.typed.bufferViews[std::size_t(from.view)].buffer));
    for (qint64 i = 0; i < from.count; ++i)
        std::memcpy(to + i * size, bytes.constData() + from.begin + i * from.stride,
                    std::size_t(size));
}

std::uint32_t indexAt(const QByteArray &bytes, int type, qint64 position)
{
    std::uint32_t index = 0;
    asComponent(type, [&](auto component) {
        std::memcpy(&component, bytes.constData() + position * qint64(sizeof component),
                    sizeof component);
        index = std::uint32_t(component);
    });
    return index;
}

void replaceSparse(const qxGltfModel &model, const qxGltfAccessor::Sparse &sparse,
                   qxGltfPacked &packed)
{
    const qint64 size = packed.elementSize();
    QByteArray values(int(sparse.values.count * size), '\0');
    copyElements(model, sparse.values, size, values.data());
    qxGltfPacked indices;
    indices.type = sparse.indices.type;
    indices.shape = "SCALAR";
    QByteArray places(int(sparse.indices.count * indices.componentSize()), '\0');
    copyElements(model, sparse.indices, indices.componentSize(), places.data());
    for (qint64 i = 0; i < sparse.indices.count; ++i) {
        const std::uint32_t place = indexAt(places, indices.type, i);
        if (place < packed.count)
            std::memcpy(packed.bytes.data() + place * size, values.constData() + i * size,
                        std::size_t(size));
    }
}

} // namespace

qxGltfPacked qxGltfPacked::of(const qxGltfModel &model, int index)
{
    const qxGltfAccessor accessor = qxGltfAccessor::of(model.document.json, index);
    qxGltfPacked packed;
    packed.type = accessor.elements.type;
    packed.shape = model.document.json["accessors"][std::size_t(index)]["type"].get<std::string>();
    packed.isNormalized = accessor.isNormalized;
    packed.count = accessor.elements.count;
    if (accessor.elements.view < 0 && !accessor.sparse)
        return packed;
    packed.bytes = QByteArray(int(packed.count * packed.elementSize()), '\0');
    copyElements(model, accessor.elements, packed.elementSize(), packed.bytes.data());
    if (accessor.sparse)
        replaceSparse(model, *accessor.sparse, packed);
    return packed;
}

qxGltfPacked qxGltfPacked::of(const std::vector<float> &values, int components)
{
    qxGltfPacked packed;
    packed.type = TINYGLTF_COMPONENT_TYPE_FLOAT;
    packed.shape = shapeOf(components);
    packed.count = qint64(values.size()) / components;
    packed.bytes = QByteArray(reinterpret_cast<const char *>(values.data()),
                              int(values.size() * sizeof(float)));
    return packed;
}

qxGltfPacked qxGltfPacked::of(const std::vector<std::uint32_t> &indices)
{
    const std::uint32_t largest =
        indices.empty() ? 0 : *std::max_element(indices.begin(), indices.end());
    qxGltfPacked packed;
    packed.type = largest < 65535 ? TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT
                                  : TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT;
    packed.shape = "SCALAR";
    packed.count = qint64(indices.size());
    asComponent(packed.type, [&](auto component) {
        packed.bytes.resize(int(indices.size() * sizeof component));
        auto *to = reinterpret_cast<decltype(component) *>(packed.bytes.data());
        for (const std::uint32_t index : indices)
            *to++ = decltype(component)(index);
    });
    return packed;
}

int qxGltfPacked::components() const
{
    if (shape == "SCALAR")
        return 1;
    return shape == "MAT4" ? 16 : shape.back() - '0';
}

int qxGltfPacked::componentSize() const
{
    int size = 0;
    asComponent(type, [&size](auto component) { size = int(sizeof component); });
    return size;
}

std::vector<float> qxGltfPacked::floats() const
{
    std::vector<float> values(std::size_t(count * components()));
    if (bytes.isNull())
        return values;
    asComponent(type, [&](auto component) {
        const char *from = bytes.constData();
        for (float &value : values) {
            std::memcpy(&component, from, sizeof component);
            value = asFloat(component, isNormalized);
            from += sizeof component;
        }
    });
    return values;
}

void qxGltfPacked::setFloats(const std::vector<float> &values)
{
    bytes = QByteArray(int(values.size()) * componentSize(), Qt::Uninitialized);
    count = qint64(values.size()) / components();
    asComponent(type, [&](auto component) {
        char *to = bytes.data();
        for (const float value : values) {
            component = fromFloat<decltype(component)>(value, isNormalized);
            std::memcpy(to, &component, sizeof component);
            to += sizeof component;
        }
    });
}
