#include "Files/Gltf/Export/qxGltfBin.h"

#include "Files/Gltf/Common/qxTinyGltf.h"
#include "Files/Gltf/Export/qxGltfPacked.h"

#include <limits>

namespace {

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

} // namespace

int qxGltfBin::addAccessor(const qxGltfPacked &packed, Use use, bool bounds)
{
    qxJson accessor = qxJson::object();
    if (!packed.bytes.isNull()) {
        const int size = packed.elementSize();
        const int stride = use == Vertices ? roundedUp(size) : size;
        const int index = addView(spread(packed, stride));
        qxJson &view = m_json["bufferViews"][std::size_t(index)];
        if (stride != size)
            view["byteStride"] = stride;
        if (use != Values)
            view["target"] = use == Vertices ? TINYGLTF_TARGET_ARRAY_BUFFER
                                             : TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER;
        accessor["bufferView"] = index;
    }
    accessor["componentType"] = packed.type;
    if (packed.isNormalized)
        accessor["normalized"] = true;
    accessor["count"] = packed.count;
    accessor["type"] = packed.shape;
    if (bounds)
        setBounds(accessor, packed);
    qxJson &accessors = m_json["accessors"];
    accessors.push_back(accessor);
    return int(accessors.size()) - 1;
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
}
