#include "Files/Gltf/Common/qxGltfJson.h"

#include "qxText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

const qxJson &qxGltfMember(const qxJson &object, const char *name)
{
    static const qxJson none;
    if (!object.is_object())
        return none;
    const auto found = object.find(name);
    return found == object.end() ? none : *found;
}

const qxJson &qxGltfSection(const qxJson &document, const char *name)
{
    static const qxJson none = qxJson::array();
    const qxJson &section = qxGltfMember(document, name);
    return section.is_array() ? section : none;
}

const qxJson &qxGltfAt(const qxJson &object, const qxGltfPlace &place)
{
    static const qxJson none;
    return object.contains(place) ? object.at(place) : none;
}

int qxGltfIndex(const qxJson &object, const char *name)
{
    const qxJson &value = qxGltfMember(object, name);
    return value.is_number_integer() ? value.get<int>() : -1;
}

QString qxFileText::kind(const char *kind)
{
    [[maybe_unused]] static const char *const toTranslate[] = {
        QT_TR_NOOP("accessor"),    QT_TR_NOOP("animation"),       QT_TR_NOOP("buffer"),
        QT_TR_NOOP("buffer view"), QT_TR_NOOP("camera"),          QT_TR_NOOP("image"),
        QT_TR_NOOP("light"),       QT_TR_NOOP("material"),        QT_TR_NOOP("mesh"),
        QT_TR_NOOP("node"),        QT_TR_NOOP("sampler"),         QT_TR_NOOP("scene"),
        QT_TR_NOOP("skin"),        QT_TR_NOOP("switch material"), QT_TR_NOOP("texture")};
    return tr(kind);
}

QString qxGltfLabel(const char *kind, int index, const qxJson &entry)
{
    const QString number = QString::number(index);
    const qxJson &name = qxGltfMember(entry, "name");
    if (!name.is_string())
        return qxFileText::kind(kind) + ' ' + number;
    return qxFileText::tr("%1 %2 \"%3\"", "a node, its number and its name")
        .arg(qxFileText::kind(kind), number, qxText::fromUtf8(name.get_ref<const std::string &>()));
}

QString qxGltfPrimitiveLabel(int index, const qxJson &mesh, int primitive)
{
    return qxFileText::tr("%1, primitive %2")
        .arg(qxGltfLabel("mesh", index, mesh), QString::number(primitive));
}

qxJson qxGltfNumber(float number)
{
    if (!std::isfinite(number)) {
        const float largest = std::numeric_limits<float>::max();
        return qxGltfNumber(std::isnan(number) ? 0 : std::copysign(largest, number));
    }
    char text[32];
    const std::to_chars_result end = std::to_chars(text, text + sizeof(text), number);
    double shortest = number;
    std::from_chars(text, end.ptr, shortest);
    // Whole numbers without a fraction, as most files have them.
    if (std::fabs(shortest) < 1e9 && shortest == std::floor(shortest))
        return std::int32_t(shortest);
    return shortest;
}

qxJson qxGltfNumberList(const float *begin, std::size_t count)
{
    qxJson list = qxJson::array();
    for (std::size_t i = 0; i < count; ++i)
        list.push_back(qxGltfNumber(begin[i]));
    return list;
}

void qxGltfUseExtension(qxJson &document, const char *extension)
{
    qxJson &used = document["extensionsUsed"];
    if (std::find(used.begin(), used.end(), extension) == used.end())
        used.push_back(extension);
}

void qxGltfEraseExtension(qxJson &object, const char *extension)
{
    const auto extensions = object.find("extensions");
    if (extensions == object.end())
        return;
    extensions->erase(extension);
    if (extensions->empty())
        object.erase("extensions");
}
