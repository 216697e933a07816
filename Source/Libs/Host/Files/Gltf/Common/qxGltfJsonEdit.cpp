#include "Files/Gltf/Common/qxGltfJsonEdit.h"

#include "Files/Gltf/Common/qxGltfExtras.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

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

void qxGltfSetExtra(qxJson &node, const char *key, const qxJson &value)
{
    const auto extras = node.find("extras");
    const bool holdsEntries = extras != node.end() && extras->is_object();
    if (!value.is_null()) {
        if (extras != node.end() && !holdsEntries)
            *extras = qxJson{{qxGltfKeys::otherExtras, qxJson(*extras)}};
        node["extras"][key] = value;
        return;
    }
    if (!holdsEntries || extras->erase(key) == 0)
        return;
    if (extras->empty())
        node.erase("extras");
    else if (extras->size() == 1 && extras->contains(qxGltfKeys::otherExtras))
        *extras = qxJson((*extras)[qxGltfKeys::otherExtras]);
}
