#include "qxSetMatch.h"

#include "Variants/qxKindAccess.h"

bool qxSetMatch::matches(const qxVariantSet &set)
{
    bool hasStates = false;
    for (int kind = 0; kind < qxKindAccess::Count; ++kind) {
        for (const qxVariantState &entry : set.*qxKindAccess::of(kind).states) {
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
    const qxVariant *const found = qxKindAccess::of(variant.first).find(variant.second);
    return *m_shown.insert(variant, found ? found->shown() : qxShownState());
}
