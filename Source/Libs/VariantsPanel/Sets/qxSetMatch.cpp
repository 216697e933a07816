#include "qxSetMatch.h"

#include "Variants/qxKindAccess.h"
#include "Variants/qxShownState.h"

bool qxSetMatch::matches(const qxVariantSet &set)
{
    bool hasStates = false;
    for (int kind = 0; kind < qxKindAccess::Count; ++kind) {
        for (const qxVariantState &entry : set.*qxKindAccess::of(kind).states) {
            hasStates = true;
            if (!qxShownState::isCurrent(entry.state, currentState({kind, entry.variant})))
                return false;
        }
    }
    return hasStates;
}

const QString &qxSetMatch::currentState(const Variant &variant)
{
    const auto known = m_current.constFind(variant);
    if (known != m_current.constEnd())
        return *known;
    const qxVariant *const found = qxKindAccess::of(variant.first).find(variant.second);
    return *m_current.insert(variant, found ? qxShownState::of(*found) : QString());
}
