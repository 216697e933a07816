#include "Files/qxGltfAccessors.h"

#include "Files/qxGltfModel.h"

#include <algorithm>
#include <cstring>

namespace {

/// Where elements lie in memory and how they are stored there.
struct Place {
    QByteArray bytes;
    std::size_t stride = 0;
    std::size_t count = 0;
    int components = 1;
    int type = 0;
};

/// Copies the components of the stored type `T` as `convert` makes them.
template <class T, class To, class Convert>
void copyAs(const Place &place, std::vector<To> &to, const Convert &convert)
{
    const std::size_t components = std::size_t(place.components);
    for (std::size_t i = 0; i < place.count; ++i) {
        const char *from = place.bytes.constData() + i * place.stride;
        for (std::size_t c = 0; c < components; ++c) {
            T value;
            std::memcpy(&value, from + c * sizeof(T), sizeof(T));
            to[i * components + c] = convert(value);
        }
    }
}

template <class T>
void copyScaled(const Place &place, bool normalized, std::vector<float> &to)
{
    const float limit = float(std::numeric_limits<T>::max());
    if (normalized)
        copyAs<T>(place, to, [limit](T value) { return std::max(float(value) / limit, -1.0f); });
    else
        copyAs<T>(place, to, [](T value) { return float(value); });
}

void copyFloats(const Place &place, bool normalized, std::vector<float> &to)
{
    switch (place.type) {
    case TINYGLTF_COMPONENT_TYPE_BYTE:
        return copyScaled<std::int8_t>(place, normalized, to);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
        return copyScaled<std::uint8_t>(place, normalized, to);
    case TINYGLTF_COMPONENT_TYPE_SHORT:
        return copyScaled<std::int16_t>(place, normalized, to);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
        return copyScaled<std::uint16_t>(place, normalized, to);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT:
        return copyScaled<std::uint32_t>(place, normalized, to);
    default:
        return copyAs<float>(place, to, [](float value) { return value; });
    }
}

void copyIndices(const Place &place, std::vector<std::uint32_t> &to)
{
    const auto plain = [](auto value) { return std::uint32_t(value); };
    switch (place.type) {
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
        return copyAs<std::uint8_t>(place, to, plain);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
        return copyAs<std::uint16_t>(place, to, plain);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT:
        return copyAs<std::uint32_t>(place, to, plain);
    default:
        throw qxGltfError(qxFileText::tr("indices are not of an unsigned integer type"));
    }
}

/// The rest of the view from `offset` on. The bytes stay those of the model: many accessors may
/// share one large view.
QByteArray bytesFrom(const qxGltfModel &model, int index, std::size_t offset)
{
    const tinygltf::BufferView &view = model.typed.bufferViews[std::size_t(index)];
    const QByteArray &buffer = model.buffers[std::size_t(view.buffer)];
    if (buffer.isNull())
        throw qxGltfError(qxFileText::tr("buffer view %1 is in a buffer without data").arg(index));
    return QByteArray::fromRawData(buffer.constData() + view.byteOffset + offset,
                                   int(view.byteLength - offset));
}

const tinygltf::Accessor &accessorAt(const qxGltfModel &model, int index)
{
    return model.typed.accessors[std::size_t(index)];
}

Place placeOf(const qxGltfModel &model, int index)
{
    const tinygltf::Accessor &accessor = accessorAt(model, index);
    Place place;
    place.components = qxGltfComponents(model, index);
    place.type = accessor.componentType;
    if (accessor.bufferView < 0)
        return place;
    const tinygltf::BufferView &view = model.typed.bufferViews[std::size_t(accessor.bufferView)];
    place.count = accessor.count;
    place.stride = view.byteStride;
    if (place.stride == 0) {
        place.stride = std::size_t(place.components)
            * std::size_t(tinygltf::GetComponentSizeInBytes(std::uint32_t(place.type)));
    }
    if (place.count > 0)
        place.bytes = bytesFrom(model, accessor.bufferView, accessor.byteOffset);
    return place;
}

/// The elements that a sparse accessor puts in place of others, and where.
Place sparseIndices(const qxGltfModel &model, const tinygltf::Accessor &accessor)
{
    Place place;
    place.count = std::size_t(accessor.sparse.count);
    place.type = accessor.sparse.indices.componentType;
    place.stride = std::size_t(tinygltf::GetComponentSizeInBytes(std::uint32_t(place.type)));
    place.bytes = bytesFrom(model, accessor.sparse.indices.bufferView,
                            std::size_t(accessor.sparse.indices.byteOffset));
    return place;
}

Place sparseValues(const qxGltfModel &model, const tinygltf::Accessor &accessor, Place place)
{
    place.count = std::size_t(accessor.sparse.count);
    place.stride = std::size_t(place.components)
        * std::size_t(tinygltf::GetComponentSizeInBytes(std::uint32_t(place.type)));
    place.bytes = bytesFrom(model, accessor.sparse.values.bufferView,
                            std::size_t(accessor.sparse.values.byteOffset));
    return place;
}

template <class To, class Copy>
std::vector<To> readAll(const qxGltfModel &model, int index, const Copy &copy)
{
    const tinygltf::Accessor &accessor = accessorAt(model, index);
    const Place place = placeOf(model, index);
    const std::size_t components = std::size_t(place.components);
    std::vector<To> values(accessor.count * components);
    copy(place, values);
    if (!accessor.sparse.isSparse || accessor.sparse.count == 0)
        return values;

    std::vector<std::uint32_t> targets(std::size_t(accessor.sparse.count));
    copyIndices(sparseIndices(model, accessor), targets);
    std::vector<To> replaced(targets.size() * components);
    copy(sparseValues(model, accessor, place), replaced);
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (targets[i] >= accessor.count)
            throw qxGltfError(qxFileText::tr("accessor %1 replaces element %2, it has %3")
                                  .arg(index)
                                  .arg(targets[i])
                                  .arg(accessor.count));
        std::copy_n(&replaced[i * components], components, &values[targets[i] * components]);
    }
    return values;
}

} // namespace

int qxGltfComponents(const qxGltfModel &model, int accessor)
{
    return tinygltf::GetNumComponentsInType(std::uint32_t(accessorAt(model, accessor).type));
}

std::vector<float> qxGltfFloats(const qxGltfModel &model, int accessor)
{
    const bool normalized = accessorAt(model, accessor).normalized;
    return readAll<float>(model, accessor,
                          [normalized](const Place &place, std::vector<float> &to) {
                              copyFloats(place, normalized, to);
                          });
}

std::vector<std::uint32_t> qxGltfIndices(const qxGltfModel &model, int accessor)
{
    return readAll<std::uint32_t>(model, accessor, copyIndices);
}
