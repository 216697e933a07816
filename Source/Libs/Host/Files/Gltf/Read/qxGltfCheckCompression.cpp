#include "Files/Gltf/Common/qxGltfCheckValues.h"
#include "Files/Gltf/Read/qxGltfCheck.h"

#include <limits>

namespace {

/// Empty for what is no text.
QString textOf(const qxJson &object, const char *name, const char *fallback)
{
    const qxJson &text = qxGltfMember(object, name);
    if (text.is_null())
        return QLatin1String(fallback);
    return text.is_string() ? QString::fromStdString(text.get<std::string>()) : QString();
}

/// Whether elements of that many bytes can be compressed so. The format says it, and the decoder
/// relies on it.
bool isPossible(const QString &mode, const QString &filter, qint64 stride, qint64 count)
{
    if (mode != QLatin1String("ATTRIBUTES")) {
        const bool isWhole =
            mode == QLatin1String("TRIANGLES") ? count % 3 == 0 : mode == QLatin1String("INDICES");
        return isWhole && filter == QLatin1String("NONE") && (stride == 2 || stride == 4);
    }
    if (stride < 4 || stride > 256 || stride % 4 != 0)
        return false;
    if (filter == QLatin1String("OCTAHEDRAL"))
        return stride == 4 || stride == 8;
    if (filter == QLatin1String("QUATERNION"))
        return stride == 8;
    return filter == QLatin1String("NONE") || filter == QLatin1String("EXPONENTIAL");
}

} // namespace

void qxGltfCheckMeshopt(const QString &called, const qxJson &view, const qxJson &document)
{
    const qxJson &json = qxGltfMember(qxGltfMember(view, "extensions"), "EXT_meshopt_compression");
    if (json.is_null())
        return;
    const qxJson &buffers = qxGltfSection(document, "buffers");
    qxGltfCheckIndexValue(called, qxGltfMember(json, "buffer"), buffers, "buffer");
    const qint64 end = qxGltfCheckedCount(called, json, "byteOffset", 0)
        + qxGltfCheckedCount(called, json, "byteLength", 0);
    const std::size_t buffer = json["buffer"].get<std::size_t>();
    const qint64 there = buffers[buffer]["byteLength"].get<qint64>();
    if (end > there || qxGltfMember(json, "byteLength").is_null())
        throw qxGltfError(qxFileText::tr("%1 ends at byte %2 of buffer %3, which has %4")
                              .arg(called)
                              .arg(end)
                              .arg(buffer)
                              .arg(there));
    const qint64 stride = qxGltfCheckedCount(called, json, "byteStride", 0);
    const qint64 count = qxGltfCheckedCount(called, json, "count", 0);
    const qint64 length = view["byteLength"].get<qint64>();
    const bool isEven = stride > 0 && length % stride == 0 && length / stride == count;
    if (!isEven || qxGltfCheckedCount(called, view, "byteStride", stride) != stride
        || !isPossible(textOf(json, "mode", ""), textOf(json, "filter", "NONE"), stride, count))
        throw qxGltfError(qxFileText::tr("%1 states an impossible way of compression").arg(called));
}

void qxGltfCheckDraco(const QString &called, const qxJson &primitive, const qxJson &document)
{
    const qxJson &json =
        qxGltfMember(qxGltfMember(primitive, "extensions"), "KHR_draco_mesh_compression");
    if (json.is_null())
        return;
    qxGltfCheckIndexValue(called, qxGltfMember(json, "bufferView"),
                          qxGltfSection(document, "bufferViews"), "buffer view");
    const qxJson &attributes = qxGltfMember(json, "attributes");
    bool isRight = attributes.is_object();
    for (const auto &[name, id] : attributes.items())
        isRight = isRight && id.is_number_unsigned()
            && id.get<quint64>() <= quint64(std::numeric_limits<int>::max())
            && primitive["attributes"].contains(name);
    const qint64 mode = qxGltfCheckedCount(called, primitive, "mode", 4);
    if (!isRight || (mode != 4 && mode != 5))
        throw qxGltfError(qxFileText::tr("%1 states an impossible way of compression").arg(called));
}
