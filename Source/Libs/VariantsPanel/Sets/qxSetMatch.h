#pragma once

#include "qxVariant.h"

#include <QHash>

class qxVariantSet;

/// Tells which sets the scene shows now: those all of whose states are the current ones.
///
/// What it learns of a variant it keeps until reset.
class qxSetMatch {
public:
    /// Whether the set has states and every one of them is current. A state that depends on the one
    /// before, such as "!Next", is never current.
    bool matches(const qxVariantSet &set);
    /// The scene may be another.
    void reset() { m_shown.clear(); }

private:
    typedef QPair<int, QString> Variant; ///< kind and name

    const qxShownState &shownState(const Variant &variant);

    QHash<Variant, qxShownState> m_shown;
};
