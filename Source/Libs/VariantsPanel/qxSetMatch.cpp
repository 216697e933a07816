#include "qxSetMatch.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxShownState.h"

namespace {

struct Kind {
    const qxStateList qxVariantSet::*states;
    const qxVariant *(*find)(const QString &name);
};

const Kind kinds[] = {
    {&qxVariantSet::nodeVariants,
     [](const QString &name) -> const qxVariant * { return qxVariants::findNodeVariant(name); }},
    {&qxVariantSet::materialVariants,
     [](const QString &name) -> const qxVariant * {
         return qxVariants::findMaterialVariant(name);
     }},
    {&qxVariantSet::lightVariants,
     [](const QString &name) -> const qxVariant * { return qxVariants::findLightVariant(name); }},
    {&qxVariantSet::overlayVariants,
     [](const QString &name) -> const qxVariant * { return qxVariants::findOverlayVariant(name); }},
    {&qxVariantSet::transformVariants,
     [](const QString &name) -> const qxVariant * {
         return qxVariants::findTransformVariant(name);
     }},
};

} // namespace

bool qxSetMatch::matches(const qxVariantSet &set)
{
    bool hasStates = false;
    for (int kind = 0; kind < int(std::size(kinds)); ++kind) {
        for (const qxVariantState &entry : set.*kinds[kind].states) {
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
    const qxVariant *const found = kinds[variant.first].find(variant.second);
    return *m_current.insert(variant, found ? qxShownState::of(*found) : QString());
}
