#include "Files/Gltf/Common/qxGltfExtras.h"

#include "qxText.h"

#include <algorithm>
#include <cmath>

namespace {

const std::size_t _numbersPerState = 10;

/// Beyond this length the matrix of a quaternion overflows sooner or later.
const double _longQuaternion = 1e4;

} // namespace

bool qxGltfCountsChildren(const qxJson &node)
{
    const qxJson &extras = qxGltfMember(node, "extras");
    return !qxGltfMember(extras, qxGltfKeys::switchChoice).is_null()
        || !qxGltfMember(extras, qxGltfKeys::sharesCoreOf).is_null();
}

bool qxGltfIsFinite(const osg::Matrix &matrix)
{
    return std::all_of(matrix.getValues(), matrix.getValues() + 16,
                       [](float number) { return std::isfinite(number); });
}

osg::Quaternion qxGltfRotation(const float *numbers)
{
    const double length = std::hypot(std::hypot(double(numbers[0]), double(numbers[1])),
                                     std::hypot(double(numbers[2]), double(numbers[3])));
    const double divisor = length > _longQuaternion ? length : 1;
    osg::Quaternion rotation;
    rotation.setValueAsQuat(float(numbers[0] / divisor), float(numbers[1] / divisor),
                            float(numbers[2] / divisor), float(numbers[3] / divisor));
    return rotation;
}

osg::Matrix qxGltfMatrix(const float *numbers)
{
    osg::Matrix matrix;
    matrix.setTransform(osg::Vec3f(numbers[0], numbers[1], numbers[2]), qxGltfRotation(numbers + 3),
                        osg::Vec3f(numbers[7], numbers[8], numbers[9]));
    return matrix;
}

qxGltfExtras::qxGltfExtras(int index, const qxJson &node, QStringList &warnings, const char *kind)
    : m_index(index), m_node(node), m_warnings(warnings), m_kind(kind)
{
}

const qxJson &qxGltfExtras::value(const char *key) const
{
    return qxGltfMember(qxGltfMember(m_node, "extras"), key);
}

bool qxGltfExtras::has(const char *key) const
{
    return !value(key).is_null();
}

bool qxGltfExtras::isNumber(const char *key) const
{
    return value(key).is_number();
}

void qxGltfExtras::warn(const char *key, const QString &reason) const
{
    m_warnings << QString("%1: %2 %3").arg(qxGltfLabel(m_kind, m_index, m_node), key, reason);
}

std::optional<int> qxGltfExtras::integer(const char *key) const
{
    const qxJson &number = value(key);
    if (number.is_null())
        return std::nullopt;
    const double wanted = number.is_number() ? number.get<double>() : NAN;
    if (wanted == std::floor(wanted) && std::fabs(wanted) < 1e9)
        return int(wanted);
    warn(key, qxFileText::tr("is no integer"));
    return std::nullopt;
}

std::optional<float> qxGltfExtras::number(const char *key) const
{
    const float wanted = isNumber(key) ? value(key).get<float>() : NAN;
    if (std::isfinite(wanted))
        return wanted;
    if (has(key))
        warn(key, qxFileText::tr("is no number"));
    return std::nullopt;
}

bool qxGltfExtras::flag(const char *key, bool fallback) const
{
    const qxJson &wanted = value(key);
    if (wanted.is_null())
        return fallback;
    if (wanted == 0 || wanted == 1)
        return wanted == 1;
    if (wanted.is_boolean())
        return wanted.get<bool>();
    warn(key, qxFileText::tr("is neither true nor false"));
    return fallback;
}

std::optional<std::string> qxGltfExtras::text(const char *key) const
{
    if (value(key).is_string())
        return value(key).get<std::string>();
    if (has(key))
        warn(key, qxFileText::tr("is no text"));
    return std::nullopt;
}

/// The numbers of a list; none when one of them is not finite.
std::vector<float> qxGltfExtras::numbers(const char *key) const
{
    std::vector<float> numbers;
    const qxJson &list = value(key);
    for (const qxJson &number : list.is_array() ? list : qxJson::array())
        numbers.push_back(number.is_number() ? number.get<float>() : NAN);
    const bool usable = std::all_of(numbers.begin(), numbers.end(),
                                    [](float number) { return std::isfinite(number); });
    return usable ? numbers : std::vector<float>();
}

std::optional<osg::Matrix> qxGltfExtras::matrix(const char *key) const
{
    const std::vector<float> all = numbers(key);
    if (all.size() == 16) {
        osg::Matrix matrix;
        matrix.setValue(all.data());
        return matrix;
    }
    if (has(key))
        warn(key, qxFileText::tr("is not a list of sixteen numbers"));
    return std::nullopt;
}

std::vector<osg::Matrix> qxGltfExtras::transforms(const char *key) const
{
    const std::vector<float> all = numbers(key);
    std::vector<osg::Matrix> matrices;
    if (all.empty() || all.size() % _numbersPerState != 0) {
        warn(key, qxFileText::tr("is not a list of ten numbers per state"));
        return matrices;
    }
    for (std::size_t i = 0; i < all.size(); i += _numbersPerState)
        matrices.push_back(qxGltfMatrix(&all[i]));
    if (std::all_of(matrices.begin(), matrices.end(), qxGltfIsFinite))
        return matrices;
    warn(key, qxFileText::tr("holds numbers that are too large"));
    return {};
}

std::vector<int> qxGltfExtras::integers(const char *key) const
{
    std::vector<int> integers;
    const qxJson &list = value(key);
    for (const qxJson &number : list.is_array() ? list : qxJson::array())
        integers.push_back(number.is_number_integer() ? number.get<int>() : -1);
    if (has(key) && (!list.is_array() || std::count(integers.begin(), integers.end(), -1) > 0))
        warn(key, qxFileText::tr("is not a list of integers"));
    return integers;
}

std::vector<std::string> qxGltfExtras::texts(const char *key) const
{
    std::vector<std::string> texts;
    const qxJson &list = value(key);
    if (list.is_string()) {
        for (const QString &part : qxText::fromUtf8(list.get<std::string>()).split(';'))
            texts.push_back(qxText::toUtf8(part));
        return texts;
    }
    for (const qxJson &entry : list.is_array() ? list : qxJson::array())
        texts.push_back(entry.is_string() ? entry.get<std::string>() : std::string());
    return texts;
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
