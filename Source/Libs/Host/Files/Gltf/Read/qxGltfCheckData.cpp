#include "Files/Gltf/Common/qxGltfCheckValues.h"
#include "Files/Gltf/Read/qxGltfCheck.h"
#include "Files/Gltf/Read/qxGltfElements.h"

#include <limits>

namespace {

const qint64 _maxBuffer = std::numeric_limits<int>::max();

void checkBuffers(const qxJson &document)
{
    int index = 0;
    for (const qxJson &buffer : qxGltfSection(document, "buffers")) {
        const QString called = qxGltfLabel("buffer", index++, buffer);
        const qint64 length = qxGltfCheckedCount(called, buffer, "byteLength", -1);
        if (length < 0 || length > _maxBuffer)
            throw qxGltfError(qxFileText::tr("%1 states no usable \"byteLength\"").arg(called));
        const qxJson &uri = qxGltfMember(buffer, "uri");
        if (!uri.is_null() && !uri.is_string())
            throw qxGltfError(qxFileText::tr("%1: \"uri\" is no text").arg(called));
    }
}

void checkViews(const qxJson &document)
{
    const qxJson &buffers = qxGltfSection(document, "buffers");
    int index = 0;
    for (const qxJson &view : qxGltfSection(document, "bufferViews")) {
        const QString called = qxGltfLabel("buffer view", index++, view);
        qxGltfCheckIndexValue(called, qxGltfMember(view, "buffer"), buffers, "buffer");
        const qint64 offset = qxGltfCheckedCount(called, view, "byteOffset", 0);
        const qint64 length = qxGltfCheckedCount(called, view, "byteLength", -1);
        const qint64 stride = qxGltfCheckedCount(called, view, "byteStride", 4);
        if (length < 0)
            throw qxGltfError(qxFileText::tr("%1 states no \"byteLength\"").arg(called));
        if (stride < 4 || stride > 252 || stride % 4 != 0)
            throw qxGltfError(qxFileText::tr("%1 has an impossible stride of %2")
                                  .arg(called, QString::number(stride)));
        const std::size_t buffer = view["buffer"].get<std::size_t>();
        const qint64 there = buffers[buffer]["byteLength"].get<qint64>();
        if (offset + length > there)
            throw qxGltfError(qxFileText::tr("%1 ends at byte %2 of buffer %3, which has %4")
                                  .arg(called)
                                  .arg(offset + length)
                                  .arg(buffer)
                                  .arg(there));
        qxGltfCheckMeshopt(called, view, document);
    }
}

} // namespace

void qxGltfCheckData(const qxJson &document)
{
    checkBuffers(document);
    checkViews(document);
    const int accessors = int(qxGltfSection(document, "accessors").size());
    for (int index = 0; index < accessors; ++index)
        qxGltfAccessor::of(document, index);
}
