#include "qxSetMatch.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

bool qxSetMatch::matches(const qxVariantSet &set)
{
    bool hasStates = false;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &entry : set.*kind->states) {
            hasStates = true;
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
