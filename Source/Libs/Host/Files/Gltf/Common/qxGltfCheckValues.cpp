#include "Files/Gltf/Common/qxGltfCheckValues.h"

#include "qxText.h"

#include <cmath>
#include <limits>

void qxGltfCheckIndexValue(const QString &owner, const qxJson &value, const qxJson &list,
                           const char *what)
{
    if (!value.is_number_integer())
        throw qxGltfError(qxFileText::tr("%1 names its %2 by something that is no index")
                              .arg(owner, qxFileText::kind(what)));
    const bool huge = value.is_number_unsigned()
        && value.get<quint64>() > quint64(std::numeric_limits<int>::max());
    const qint64 index = huge ? std::numeric_limits<qint64>::max() : value.get<qint64>();
    if (index >= 0 && index < qint64(list.size()))
        return;
    throw qxGltfError(qxFileText::tr("%1 refers to %2 %3, the file has %4")
                          .arg(owner, qxFileText::kind(what), qxText::fromUtf8(value.dump()))
                          .arg(list.size()));
}

void qxGltfCheckIndex(const QString &owner, const qxJson &object, const char *name,
                      const qxJson &list, const char *what)
{
    const qxJson &value = qxGltfMember(object, name);
    if (!value.is_null())
        qxGltfCheckIndexValue(owner, value, list, what);
}

void qxGltfCheckNumbers(const QString &owner, const qxJson &object, const char *name, int count)
{
    const qxJson &value = qxGltfMember(object, name);
    if (value.is_null())
        return;
    if (!value.is_array() || int(value.size()) != count)
        throw qxGltfError(
            qxFileText::tr("%1: \"%2\" is not a list of %3 numbers").arg(owner, name).arg(count));
    for (const qxJson &number : value) {
        if (!number.is_number() || !std::isfinite(number.get<float>()))
            throw qxGltfError(qxFileText::tr("%1: \"%2\" holds something that is no finite number")
                                  .arg(owner, name));
    }
}

qint64 qxGltfCheckedCount(const QString &owner, const qxJson &object, const char *name,
                          qint64 fallback)
{
    const qxJson &value = qxGltfMember(object, name);
    if (value.is_null())
        return fallback;
    // Sums of two such numbers still fit.
    if (!value.is_number_unsigned() || value.get<quint64>() > quint64(1) << 60)
        throw qxGltfError(qxFileText::tr("%1: \"%2\" is no count").arg(owner, name));
    return qint64(value.get<quint64>());
}
