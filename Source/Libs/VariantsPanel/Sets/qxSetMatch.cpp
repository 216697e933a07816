#include "qxSetMatch.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "Variants/qxShownState.h"

bool qxSetMatch::matches(const qxVariantSet &set)
{
    bool hasStates = false;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &entry : set.*kind->states) {
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
    const qxVariant *const found = variant.first->find(variant.second);
    return *m_current.insert(variant, found ? qxShownState::of(*found) : QString());
}
