#pragma once

#include "qxVariant.h"

#include <QHash>

class qxVariantSet;
struct qxVariantKind;

/// Finds the sets that the scene shows now: all their states are current.
///
/// It caches the states of variants until reset.
class qxSetMatch {
public:
    /// Whether the set has states and every one of them is current. A state that depends on the one
    /// before, such as "!Next", is never current.
    bool matches(const qxVariantSet &set);
    /// Call it when the scene may have changed.
    void reset() { m_shown.clear(); }

private:
    typedef QPair<const qxVariantKind *, QString> Variant; ///< kind and name

    const qxShownState &shownState(const Variant &variant);

    QHash<Variant, qxShownState> m_shown;
};
