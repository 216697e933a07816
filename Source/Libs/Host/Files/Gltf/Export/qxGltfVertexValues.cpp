#include "Files/Gltf/Export/qxGltfVertexValues.h"

#include "Files/Gltf/Common/qxTinyGltf.h"

#include <algorithm>
#include <cmath>

namespace {

/// How far eight bits may be off.
const float _tolerance = 0.006f;

bool isNormal(const std::string &name)
{
    return name == "NORMAL" || name == "TANGENT";
}

/// The first three of every `width` numbers as a unit vector; false when all were.
bool normalize(std::vector<float> &values, std::size_t width)
{
    bool isChanged = false;
    for (std::size_t i = 0; i + width <= values.size(); i += width) {
        float *v = &values[i];
        const float length = std::hypot(v[0], v[1], v[2]);
        if (std::fabs(length - 1) > _tolerance) {
            isChanged = true;
            if (length > 0)
                std::for_each(v, v + 3, [length](float &number) { number /= length; });
            else
                v[2] = 1; // any direction
        }
        if (width == 4 && std::fabs(v[3]) != 1) {
            isChanged = true;
            v[3] = v[3] < 0 ? -1.0f : 1.0f;
        }
    }
    return isChanged;
}

bool clampColours(std::vector<float> &values)
{
    bool isChanged = false;
    for (float &value : values) {
        const float clamped = std::clamp(value, 0.0f, 1.0f);
        isChanged = isChanged || clamped != value;
        value = clamped;
    }
    return isChanged;
}

} // namespace

bool qxGltfIsShownAttribute(const std::string &name)
{
    static const char *const names[] = {"POSITION",   "NORMAL",     "TANGENT",    "TEXCOORD_0",
                                        "TEXCOORD_1", "TEXCOORD_2", "TEXCOORD_3", "TEXCOORD_4",
                                        "TEXCOORD_5", "COLOR_0",    "JOINTS_0",   "JOINTS_1",
                                        "WEIGHTS_0",  "WEIGHTS_1"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool qxGltfMendVertices(const std::string &name, qxGltfPacked &values)
{
    std::vector<float> numbers = values.floats();
    if (!std::all_of(numbers.begin(), numbers.end(), [](float v) { return std::isfinite(v); }))
        return false;
    if ((isNormal(name) && normalize(numbers, std::size_t(values.components())))
        || (name == "COLOR_0" && clampColours(numbers)))
        values.setFloats(numbers);
    return true;
}

bool qxGltfIsQuantized(const std::string &name, const qxGltfPacked &values)
{
    if (values.type == TINYGLTF_COMPONENT_TYPE_FLOAT)
        return false;
    if (name == "POSITION" || isNormal(name))
        return true;
    const bool isUnsigned = values.type == TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE
        || values.type == TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT;
    return name.compare(0, 8, "TEXCOORD") == 0 && !(isUnsigned && values.isNormalized);
}
