#include "Files/qxGltfCheck.h"

#include <limits>
#include <map>

namespace {

const qint64 _maxBuffer = std::numeric_limits<int>::max();
/// An accessor without data stands for zeros; nobody needs that many.
const qint64 _maxZeros = 10000000;

int componentSize(qint64 type)
{
    static const std::map<qint64, int> sizes{{5120, 1}, {5121, 1}, {5122, 2},
                                             {5123, 2}, {5125, 4}, {5126, 4}};
    const auto found = sizes.find(type);
    return found == sizes.end() ? 0 : found->second;
}

int componentCount(const std::string &type)
{
    static const std::map<std::string, int> counts{{"SCALAR", 1}, {"VEC2", 2}, {"VEC3", 3},
                                                   {"VEC4", 4},   {"MAT2", 4}, {"MAT3", 9},
                                                   {"MAT4", 16}};
    const auto found = counts.find(type);
    return found == counts.end() ? 0 : found->second;
}

void checkBuffers(const qxJson &document)
{
    int index = 0;
    for (const qxJson &buffer : qxGltfSection(document, "buffers")) {
        const QString called = qxGltfCalled("buffer", index++, buffer);
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
        const QString called = qxGltfCalled("buffer view", index++, view);
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
    }
}

/// Where the elements of an accessor or of its sparse part lie.
struct Layout {
    qint64 count = 0;
    int component = 0; ///< bytes of one component
    int element = 0; ///< bytes of one element
};

void checkExtent(const QString &called, const qxJson &place, const Layout &layout,
                 const qxJson &document)
{
    const qxJson &views = qxGltfSection(document, "bufferViews");
    qxGltfCheckIndexValue(called, qxGltfMember(place, "bufferView"), views, "buffer view");
    const qxJson &view = views[place["bufferView"].get<std::size_t>()];
    const qint64 stride = qxGltfCheckedCount(called, view, "byteStride", layout.element);
    const qint64 offset = qxGltfCheckedCount(called, place, "byteOffset", 0);
    const qint64 length = view["byteLength"].get<qint64>();
    const bool fits = layout.count == 0
        || (offset + layout.element <= length
            && layout.count - 1 <= (length - offset - layout.element) / stride);
    if (!fits)
        throw qxGltfError(qxFileText::tr("%1 has %2 elements, more than its buffer view holds")
                              .arg(called)
                              .arg(layout.count));
}

void checkSparse(const QString &called, const qxJson &sparse, const Layout &layout,
                 const qxJson &document)
{
    if (!sparse.is_object())
        throw qxGltfError(qxFileText::tr("%1: \"sparse\" is no object").arg(called));
    const qint64 count = qxGltfCheckedCount(called, sparse, "count", -1);
    if (count < 0 || count > layout.count)
        throw qxGltfError(qxFileText::tr("%1 replaces more elements than it has").arg(called));
    const qxJson &indices = qxGltfMember(sparse, "indices");
    const int size = componentSize(qxGltfCheckedCount(called, indices, "componentType", 0));
    if (size == 0)
        throw qxGltfError(qxFileText::tr("%1 has an unknown component type").arg(called));
    checkExtent(called, indices, {count, size, size}, document);
    checkExtent(called, qxGltfMember(sparse, "values"), {count, layout.component, layout.element},
                document);
}

/// Columns of small matrices begin at multiples of four bytes.
int elementSize(const std::string &type, int component)
{
    if (type == "MAT2" && component == 1)
        return 8;
    if (type == "MAT3" && component < 4)
        return component == 1 ? 12 : 24;
    return componentCount(type) * component;
}

void checkAccessor(const QString &called, const qxJson &accessor, const qxJson &document)
{
    const qxJson &type = qxGltfMember(accessor, "type");
    if (!type.is_string() || componentCount(type.get<std::string>()) == 0)
        throw qxGltfError(qxFileText::tr("%1 has an unknown type").arg(called));
    Layout layout;
    layout.count = qxGltfCheckedCount(called, accessor, "count", -1);
    layout.component = componentSize(qxGltfCheckedCount(called, accessor, "componentType", 0));
    if (layout.component == 0)
        throw qxGltfError(qxFileText::tr("%1 has an unknown component type").arg(called));
    layout.element = elementSize(type.get<std::string>(), layout.component);
    const bool stored = !qxGltfMember(accessor, "bufferView").is_null();
    if (layout.count < 0 || (!stored && layout.count > _maxZeros))
        throw qxGltfError(qxFileText::tr("%1 states no usable \"count\"").arg(called));
    if (stored)
        checkExtent(called, accessor, layout, document);
    const qxJson &sparse = qxGltfMember(accessor, "sparse");
    if (!sparse.is_null())
        checkSparse(called, sparse, layout, document);
}

} // namespace

void qxGltfCheckData(const qxJson &document)
{
    checkBuffers(document);
    checkViews(document);
    int index = 0;
    for (const qxJson &accessor : qxGltfSection(document, "accessors")) {
        checkAccessor(qxGltfCalled("accessor", index, accessor), accessor, document);
        ++index;
    }
}
