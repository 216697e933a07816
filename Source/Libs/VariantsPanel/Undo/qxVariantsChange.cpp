#include "qxVariantsChange.h"

#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxPanelChanges.h"

#include <QSet>

#include <algorithm>

namespace {

/// The variants of the kind that sets refer to.
QSet<QString> usedOf(const qxVariantKind &kind)
{
    QSet<QString> used;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        for (const qxVariantState &state : set->*kind.states)
            used.insert(state.variant);
    }
    return used;
}

} // namespace

qxVariantsChange::qxVariantsChange()
{
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        m_kinds.push_back({kind, {}, {}, {}});
        kind->visit([&](const qxVariant &variant) {
            m_kinds.back().noted.insert(variant.name, qxVariantMemento::of(*kind, variant));
        });
    }
}

void qxVariantsChange::finish()
{
    for (Kind &change : m_kinds) {
        change.kind->visit([&](const qxVariant &variant) {
            const auto after = qxVariantMemento::of(*change.kind, variant);
            const auto before = change.noted.constFind(variant.name);
            if (before == change.noted.constEnd())
                change.come.push_back({{}, after});
            else if (*before != after)
                change.edited.push_back({*before, after});
        });
        change.noted.clear();
    }
}

void qxVariantsChange::apply(bool forward) const
{
    bool isAny = false;
    for (const Kind &change : m_kinds) {
        isAny |= forward ? bring(change) : takeBack(change);
        for (const Changed &changed : change.edited)
            isAny |= edit(*change.kind, changed, forward);
    }
    if (isAny)
        Q_EMIT qxPanelChanges::the().variantsEdited();
}

bool qxVariantsChange::bring(const Kind &change)
{
    const qxVariantKind &kind = *change.kind;
    bool isAny = false;
    for (const Changed &changed : change.come) {
        if (kind.find(changed.after.name))
            continue;
        changed.after.applyTo(*kind.create(changed.after.name, false));
        isAny = true;
    }
    return isAny;
}

bool qxVariantsChange::takeBack(const Kind &change)
{
    if (change.come.empty())
        return false;
    const qxVariantKind &kind = *change.kind;
    const QSet<QString> used = usedOf(kind);
    bool isAny = false;
    for (const Changed &changed : change.come) {
        qxVariant *const found = kind.find(changed.after.name);
        if (found && !used.contains(changed.after.name)
            && qxVariantMemento::of(kind, *found) == changed.after)
            isAny |= kind.remove(changed.after.name);
    }
    return isAny;
}

bool qxVariantsChange::edit(const qxVariantKind &kind, const Changed &changed, bool forward)
{
    qxVariant *const found = kind.find(changed.after.name);
    if (!found || qxVariantMemento::of(kind, *found) != (forward ? changed.before : changed.after))
        return false;
    (forward ? changed.after : changed.before).applyTo(*found);
    return true;
}
