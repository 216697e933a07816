#include "qxSetMatch.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "qxFindCache.h"

#include <optional>

/// Most sets differ in one of their first states, which is not worth gathering the names of the
/// scene.
bool qxSetMatch::matches(const qxVariantSet &set)
{
    const int few = 8;
    const int before = m_shown.size();
    std::optional<qxFindCache> cache;
    bool hasStates = false;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &entry : set.*kind->states) {
            hasStates = true;
            if (!cache && m_shown.size() - before == few)
                cache.emplace(true);
            if (!shownState({kind, entry.variant}).is(entry.state))
                return false;
        }
    }
    return hasStates;
}

const qxShownState &qxSetMatch::shownState(const Variant &variant)
{
    const auto known = m_shown.constFind(variant);
    if (known != m_shown.constEnd())
        return *known;
    const qxVariant *const found = variant.first->find(variant.second);
    return *m_shown.insert(variant, found ? found->shown() : qxShownState());
}
