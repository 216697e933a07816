#include "Files/Gltf/Read/qxGltfAccessors.h"

#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"

#include <algorithm>
#include <cstring>

namespace {

/// Elements with their bytes.
struct Place {
    const qxGltfElements &elements;
    const char *bytes; ///< of the first element
};

/// Copies the components of the stored type `T` as `convert` makes them.
template <class T, class To, class Convert>
void copyAs(const Place &place, std::vector<To> &to, const Convert &convert)
{
    const std::size_t components = std::size_t(place.elements.components);
    for (std::size_t i = 0; i < std::size_t(place.elements.count); ++i) {
        const char *from = place.bytes + i * std::size_t(place.elements.stride);
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
    switch (place.elements.type) {
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
    switch (place.elements.type) {
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

/// Copies the elements; zeros stay what they are.
template <class To, class Copy>
void readElements(const qxGltfModel &model, const qxGltfElements &elements, std::vector<To> &to,
                  const Copy &copy)
{
    if (elements.view < 0 || elements.count == 0)
        return;
    const QByteArray bytes = model.bytesOfView(elements.view);
    if (bytes.isNull())
        throw qxGltfError(qxFileText::tr("buffer %1 has no data")
                              .arg(model.typed.bufferViews[std::size_t(elements.view)].buffer));
    copy(Place{elements, bytes.constData() + elements.begin}, to);
}

template <class To, class Copy>
std::vector<To> readAll(const qxGltfModel &model, int index, const Copy &copy)
{
    const qxGltfAccessor accessor = qxGltfAccessor::of(model.document.json, index);
    const qxGltfElements &elements = accessor.elements;
    const std::size_t components = std::size_t(elements.components);
    std::vector<To> values(std::size_t(elements.count) * components);
    readElements(model, elements, values, copy);
    if (!accessor.sparse)
        return values;

    std::vector<std::uint32_t> targets(std::size_t(accessor.sparse->indices.count));
    readElements(model, accessor.sparse->indices, targets, copyIndices);
    std::vector<To> replaced(targets.size() * components);
    readElements(model, accessor.sparse->values, replaced, copy);
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (targets[i] >= elements.count)
            throw qxGltfError(qxFileText::tr("accessor %1 replaces element %2, it has %3")
                                  .arg(index)
                                  .arg(targets[i])
                                  .arg(elements.count));
        std::copy_n(&replaced[i * components], components, &values[targets[i] * components]);
    }
    return values;
}

} // namespace

std::vector<float> qxGltfFloats(const qxGltfModel &model, int accessor)
{
    const bool isNormalized = qxGltfAccessor::of(model.document.json, accessor).isNormalized;
    return readAll<float>(model, accessor,
                          [isNormalized](const Place &place, std::vector<float> &to) {
                              copyFloats(place, isNormalized, to);
                          });
}

std::vector<std::uint32_t> qxGltfIndices(const qxGltfModel &model, int accessor)
{
    return readAll<std::uint32_t>(model, accessor, copyIndices);
}
