#include "Files/Gltf/Export/qxGltfBin.h"

#include "Files/Gltf/Common/qxTinyGltf.h"
#include "Files/Gltf/Export/qxGltfCompress.h"

#include <limits>

namespace {

const char *const _compression = "EXT_meshopt_compression";

int roundedUp(int size)
{
    return (size + 3) / 4 * 4;
}

/// With elements that begin at multiples of four bytes, as vertices must.
QByteArray spread(const qxGltfPacked &packed, int stride)
{
    const int size = packed.elementSize();
    if (size == stride)
        return packed.bytes;
    QByteArray bytes(int(packed.count) * stride, '\0');
    for (int i = 0; i < packed.count; ++i)
        std::copy_n(packed.bytes.constData() + i * size, size, bytes.data() + i * stride);
    return bytes;
}

void setBounds(qxJson &accessor, const qxGltfPacked &packed)
{
    qxGltfPacked plain = packed; // bounds are those of the stored numbers
    plain.isNormalized = false;
    const std::vector<float> values = plain.floats();
    const std::size_t components = std::size_t(packed.components());
    std::vector<float> least(components, std::numeric_limits<float>::max());
    std::vector<float> most(components, std::numeric_limits<float>::lowest());
    for (std::size_t i = 0; i < values.size(); ++i) {
        least[i % components] = std::min(least[i % components], values[i]);
        most[i % components] = std::max(most[i % components], values[i]);
    }
    accessor["min"] = qxGltfNumberList(least.data(), components);
    accessor["max"] = qxGltfNumberList(most.data(), components);
}

int targetOf(qxGltfBin::Use use)
{
    return use == qxGltfBin::Vertices ? TINYGLTF_TARGET_ARRAY_BUFFER
                                      : TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER;
}

} // namespace

qxJson qxGltfBin::accessorOf(const qxGltfPacked &packed, bool bounds)
{
    qxJson accessor = {{"componentType", packed.type}};
    if (packed.isNormalized)
        accessor["normalized"] = true;
    accessor["count"] = packed.count;
    accessor["type"] = packed.shape;
    if (bounds)
        setBounds(accessor, packed);
    return accessor;
}

int qxGltfBin::addAccessor(const qxGltfPacked &packed, Use use, bool bounds)
{
    qxJson accessor = accessorOf(packed, bounds);
    if (!packed.bytes.isNull()) {
        const int size = packed.elementSize();
        const int stride = use == Vertices ? roundedUp(size) : size;
        const int index = addView(spread(packed, stride));
        qxJson &view = m_json["bufferViews"][std::size_t(index)];
        if (stride != size)
            view["byteStride"] = stride;
        if (use != Values)
            view["target"] = targetOf(use);
        accessor["bufferView"] = index;
    }
    qxJson &accessors = m_json["accessors"];
    accessors.push_back(accessor);
    return int(accessors.size()) - 1;
}

int qxGltfBin::addAccessor(const qxGltfCompressed &compressed, Use use, bool bounds)
{
    if (compressed.bytes.isNull())
        return addAccessor(compressed.values, use, bounds);
    qxJson accessor = accessorOf(compressed.values, bounds);
    accessor["bufferView"] = addView(compressed, use);
    qxJson &accessors = m_json["accessors"];
    accessors.push_back(accessor);
    return int(accessors.size()) - 1;
}

int qxGltfBin::addView(const qxGltfCompressed &compressed, Use use)
{
    const int index = addView(compressed.bytes);
    qxJson &view = m_json["bufferViews"][std::size_t(index)];
    const qint64 length = compressed.values.count * compressed.stride;
    qxJson how = view;
    how["byteStride"] = compressed.stride;
    how["count"] = compressed.values.count;
    how["mode"] = compressed.mode;
    if (compressed.filter)
        how["filter"] = compressed.filter;
    view = {{"buffer", 1}, {"byteOffset", m_decompressed}, {"byteLength", length}};
    if (use == Vertices)
        view["byteStride"] = compressed.stride;
    view["target"] = targetOf(use);
    view["extensions"][_compression] = how;
    m_decompressed += (length + 3) / 4 * 4;
    return index;
}

int qxGltfBin::addView(const QByteArray &bytes)
{
    if (qint64(m_bytes.size()) + bytes.size() > std::numeric_limits<int>::max() - 4)
        throw qxGltfError(qxFileText::tr("it is too large"));
    qxJson &views = m_json["bufferViews"];
    views.push_back({{"buffer", 0}, {"byteOffset", m_bytes.size()}, {"byteLength", bytes.size()}});
    m_bytes += bytes;
    m_bytes.append(roundedUp(m_bytes.size()) - m_bytes.size(), '\0');
    return int(views.size()) - 1;
}

void qxGltfBin::finish()
{
    if (!m_bytes.isEmpty())
        m_json["buffers"] = qxJson::array({{{"byteLength", m_bytes.size()}}});
    if (m_decompressed == 0)
        return;
    qxJson buffer = {{"byteLength", m_decompressed}};
    buffer["extensions"][_compression]["fallback"] = true;
    m_json["buffers"].push_back(buffer);
}
