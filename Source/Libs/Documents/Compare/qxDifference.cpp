#include "Compare/qxDifference.h"

#include <algorithm>

qxDifferenceSort qxThingDifference::sort() const
{
    if (before < 0)
        return qxDifferenceSort::Added;
    if (after < 0)
        return qxDifferenceSort::Removed;
    const auto isAbout = [](const qxFieldDifference &field, const char *name) {
        return field.field == QLatin1String(name);
    };
    if (!fields.isEmpty() && isAbout(fields.first(), "name"))
        return qxDifferenceSort::Renamed;
    const bool isMoved =
        std::all_of(fields.begin(), fields.end(), [&](const qxFieldDifference &field) {
            return isAbout(field, "place") || isAbout(field, "group");
        });
    return isMoved ? qxDifferenceSort::Moved : qxDifferenceSort::Changed;
}
