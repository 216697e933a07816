#include "Files/Gltf/Read/qxGltfMeshopt.h"

#include "Files/qxMemoryBudget.h"

#include <meshoptimizer.h>

#include <cstring>

namespace {

/// The values in memory of what a compressed view states; checked by qxGltfCheckMeshopt.
struct Compressed {
    explicit Compressed(const qxJson &json)
        : count(json["count"].get<std::size_t>()), stride(json["byteStride"].get<std::size_t>()),
          mode(json["mode"].get<std::string>()), filter(json.value("filter", "NONE"))
    {
    }

    std::size_t count;
    std::size_t stride;
    std::string mode;
    std::string filter;
};

bool decode(const Compressed &how, const QByteArray &from, QByteArray &to)
{
    const auto *const bytes = reinterpret_cast<const unsigned char *>(from.constData());
    const std::size_t size = std::size_t(from.size());
    if (how.mode == "ATTRIBUTES")
        return meshopt_decodeVertexBuffer(to.data(), how.count, how.stride, bytes, size) == 0;
    if (how.mode == "TRIANGLES")
        return meshopt_decodeIndexBuffer(to.data(), how.count, how.stride, bytes, size) == 0;
    return meshopt_decodeIndexSequence(to.data(), how.count, how.stride, bytes, size) == 0;
}

void applyFilter(const Compressed &how, QByteArray &bytes)
{
    if (how.filter == "OCTAHEDRAL")
        meshopt_decodeFilterOct(bytes.data(), how.count, how.stride);
    else if (how.filter == "QUATERNION")
        meshopt_decodeFilterQuat(bytes.data(), how.count, how.stride);
    else if (how.filter == "EXPONENTIAL")
        meshopt_decodeFilterExp(bytes.data(), how.count, how.stride);
}

QByteArray decoded(const qxJson &json, const std::vector<QByteArray> &buffers,
                   qxMemoryBudget &budget)
{
    const QByteArray &buffer = buffers[json["buffer"].get<std::size_t>()];
    if (buffer.isNull())
        throw qxGltfError(qxFileText::tr("buffer %1 has no data").arg(json["buffer"].get<int>()));
    const Compressed how(json);
    const QByteArray from =
        QByteArray::fromRawData(buffer.constData() + std::max(0, qxGltfIndex(json, "byteOffset")),
                                json["byteLength"].get<int>());
    budget.take(qint64(how.count), qint64(how.stride));
    QByteArray bytes(int(how.count * how.stride), Qt::Uninitialized);
    if (!decode(how, from, bytes)) {
        budget.giveBack(bytes.size());
        throw qxGltfError(qxFileText::tr("its compressed data are damaged"));
    }
    applyFilter(how, bytes);
    return bytes;
}

} // namespace

std::map<int, QByteArray> qxGltfDecodedViews(const qxJson &document,
                                             const std::vector<QByteArray> &buffers,
                                             qxMemoryBudget &budget, QStringList &warnings)
{
    std::map<int, QByteArray> all;
    const qxJson &views = qxGltfSection(document, "bufferViews");
    for (std::size_t i = 0; i < views.size(); ++i) {
        const qxJson &json =
            qxGltfMember(qxGltfMember(views[i], "extensions"), "EXT_meshopt_compression");
        if (json.is_null())
            continue;
        try {
            all.emplace(int(i), decoded(json, buffers, budget));
        } catch (const qxGltfError &error) {
            const QString said = qxGltfLabel("buffer view", int(i), views[i]) + ": ";
            if (buffers[views[i]["buffer"].get<std::size_t>()].isNull())
                throw qxGltfError(said + error.reason());
            warnings << said
                    + qxFileText::tr("%1; data that are not compressed are shown")
                          .arg(error.reason());
        }
    }
    return all;
}
