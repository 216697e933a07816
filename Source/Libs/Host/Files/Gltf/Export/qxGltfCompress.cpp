#include "Files/Gltf/Export/qxGltfCompress.h"

#include "Files/Gltf/Common/qxTinyGltf.h"

#include <meshoptimizer.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

const int _directionBits = 12;
const int _largestMantissa = (1 << 23) - 1;

void remap(qxGltfPacked &values, const std::vector<unsigned int> &places, std::size_t count)
{
    const std::size_t before = std::size_t(values.count);
    values.count = qint64(count);
    if (values.bytes.isNull())
        return;
    const std::size_t size = std::size_t(values.elementSize());
    const QByteArray old = values.bytes;
    values.bytes = QByteArray(int(count * size), '\0');
    meshopt_remapVertexBuffer(values.bytes.data(), old.constData(), before, size, places.data());
}

QByteArray encodedVertices(const QByteArray &bytes, std::size_t count, std::size_t stride)
{
    meshopt_encodeVertexVersion(0);
    QByteArray encoded(int(meshopt_encodeVertexBufferBound(count, stride)), Qt::Uninitialized);
    encoded.truncate(int(
        meshopt_encodeVertexBuffer(reinterpret_cast<unsigned char *>(encoded.data()),
                                   std::size_t(encoded.size()), bytes.constData(), count, stride)));
    return encoded;
}

float largestOf(const std::vector<float> &values)
{
    float largest = 0;
    for (const float value : values)
        largest = std::max(largest, std::fabs(value));
    return largest;
}

/// The greatest difference of any component.
float extentOf(const std::vector<float> &values, std::size_t components)
{
    float extent = 0;
    for (std::size_t c = 0; c < components; ++c) {
        float least = values[c];
        float most = values[c];
        for (std::size_t i = c; i < values.size(); i += components) {
            least = std::min(least, values[i]);
            most = std::max(most, values[i]);
        }
        extent = std::max(extent, most - least);
    }
    return extent;
}

/// The power of two that numbers may be rounded to, which fits all of them.
int gridOf(const std::string &name, const std::vector<float> &values, std::size_t components,
           bool isTarget)
{
    const float largest = largestOf(values);
    int exponent = name.compare(0, 8, "TEXCOORD") == 0 ? -16 : -14;
    if (name == "POSITION") {
        const float size = isTarget ? largest : extentOf(values, components);
        exponent = std::ilogb(std::max(size, 1e-20f)) - 16;
    }
    while (std::ldexp(1.0f, exponent) * float(_largestMantissa) < largest)
        ++exponent;
    return std::clamp(exponent, -100, 100);
}

/// Numbers on a grid, as the filter EXPONENTIAL has them: the exponent in the upper eight bits, the
/// mantissa in the others.
QByteArray gridded(std::vector<float> &values, int exponent)
{
    QByteArray bytes(int(values.size()) * 4, Qt::Uninitialized);
    char *to = bytes.data();
    for (float &value : values) {
        const std::int32_t mantissa = std::int32_t(std::lround(std::ldexp(value, -exponent)));
        const std::uint32_t word =
            (std::uint32_t(exponent) << 24) | (std::uint32_t(mantissa) & 0xFFFFFF);
        std::memcpy(to, &word, 4);
        to += 4;
        value = std::ldexp(float(mantissa), exponent);
    }
    return bytes;
}

/// Unit vectors as two numbers and, of tangents, their sign.
qxGltfCompressed directions(const qxGltfPacked &values)
{
    const std::size_t components = std::size_t(values.components());
    const std::size_t count = std::size_t(values.count);
    const std::vector<float> numbers = values.floats();
    std::vector<float> four(count * 4, 0.0f);
    for (std::size_t i = 0; i < count; ++i)
        std::copy_n(&numbers[i * components], components, &four[i * 4]);
    qxGltfCompressed result;
    result.stride = 8;
    result.filter = "OCTAHEDRAL";
    QByteArray filtered(int(count) * result.stride, '\0');
    meshopt_encodeFilterOct(filtered.data(), count, std::size_t(result.stride), _directionBits,
                            four.data());
    result.bytes = encodedVertices(filtered, count, std::size_t(result.stride));
    result.values = values;
    result.values.type = TINYGLTF_COMPONENT_TYPE_SHORT;
    result.values.isNormalized = true;
    result.values.setFloats(numbers);
    return result;
}

qxGltfCompressed numbersOnGrid(const std::string &name, const qxGltfPacked &values, bool isTarget)
{
    std::vector<float> numbers = values.floats();
    const std::size_t components = std::size_t(values.components());
    const int exponent = gridOf(name, numbers, components, isTarget);
    qxGltfCompressed result;
    result.stride = values.elementSize();
    result.filter = "EXPONENTIAL";
    const QByteArray filtered = gridded(numbers, exponent);
    result.bytes = encodedVertices(filtered, std::size_t(values.count), std::size_t(result.stride));
    result.values = qxGltfPacked::of(numbers, int(components));
    return result;
}

qxGltfCompressed unchanged(const qxGltfPacked &values)
{
    qxGltfCompressed result;
    result.values = values;
    result.stride = (values.elementSize() + 3) / 4 * 4;
    const std::size_t size = std::size_t(values.elementSize());
    QByteArray spread(int(values.count) * result.stride, '\0');
    for (int i = 0; i < values.count; ++i)
        std::copy_n(values.bytes.constData() + i * int(size), size,
                    spread.data() + i * result.stride);
    result.bytes = encodedVertices(spread, std::size_t(values.count), std::size_t(result.stride));
    return result;
}

} // namespace

void qxGltfArrange(qxGltfPrimitiveData &triangles, bool keepsOrder)
{
    std::vector<std::uint32_t> &indices = *triangles.indices;
    const std::size_t vertices = std::size_t(triangles.attributes.at("POSITION").count);
    if (!keepsOrder)
        meshopt_optimizeVertexCache(indices.data(), indices.data(), indices.size(), vertices);
    std::vector<unsigned int> places(vertices);
    const std::size_t count =
        meshopt_optimizeVertexFetchRemap(places.data(), indices.data(), indices.size(), vertices);
    meshopt_remapIndexBuffer(indices.data(), indices.data(), indices.size(), places.data());
    for (auto &[name, values] : triangles.attributes)
        remap(values, places, count);
    for (qxGltfPrimitiveData::Attributes &target : triangles.targets) {
        for (auto &[name, values] : target)
            remap(values, places, count);
    }
}

qxGltfCompressed qxGltfCompressVertices(const std::string &name, const qxGltfPacked &values,
                                        bool isTarget)
{
    qxGltfCompressed result;
    if (values.bytes.isNull() || values.count == 0) {
        result.values = values;
        return result;
    }
    const bool isFloat = values.type == TINYGLTF_COMPONENT_TYPE_FLOAT;
    const bool isWeight = name.compare(0, 7, "WEIGHTS") == 0; // whose sum must stay
    if (isFloat && !isTarget && (name == "NORMAL" || name == "TANGENT"))
        result = directions(values);
    else
        result = isFloat && !isWeight ? numbersOnGrid(name, values, isTarget) : unchanged(values);
    const qint64 plain = result.values.count * ((result.values.elementSize() + 3) / 4 * 4);
    if (result.bytes.size() >= plain)
        result.bytes = QByteArray();
    return result;
}

qxGltfCompressed qxGltfCompressIndices(const std::vector<std::uint32_t> &indices,
                                       std::size_t vertices, bool areTriangles)
{
    qxGltfCompressed result;
    result.values = qxGltfPacked::of(indices);
    result.stride = result.values.componentSize();
    result.mode = areTriangles ? "TRIANGLES" : "INDICES";
    meshopt_encodeIndexVersion(1); // the one that the extension knows
    const std::size_t bound = areTriangles
        ? meshopt_encodeIndexBufferBound(indices.size(), vertices)
        : meshopt_encodeIndexSequenceBound(indices.size(), vertices);
    result.bytes = QByteArray(int(bound), Qt::Uninitialized);
    auto *const to = reinterpret_cast<unsigned char *>(result.bytes.data());
    result.bytes.truncate(
        int(areTriangles ? meshopt_encodeIndexBuffer(to, bound, indices.data(), indices.size())
                         : meshopt_encodeIndexSequence(to, bound, indices.data(), indices.size())));
    if (result.bytes.size() >= result.values.bytes.size())
        result.bytes = QByteArray();
    return result;
}
