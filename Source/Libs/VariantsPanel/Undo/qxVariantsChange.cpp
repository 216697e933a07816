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
            m_kinds.back().noted.insert(variant.name, contentsOf(*kind, variant));
        });
    }
}

void qxVariantsChange::finish()
{
    for (Kind &change : m_kinds) {
        change.kind->visit([&](const qxVariant &variant) {
            const Contents after = contentsOf(*change.kind, variant);
            const auto before = change.noted.constFind(variant.name);
            if (before == change.noted.constEnd())
                change.come.push_back({variant.name, {}, after});
            else if (!isSame(*before, after))
                change.edited.push_back({variant.name, *before, after});
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
        if (kind.find(changed.name))
            continue;
        give(kind, *kind.create(changed.name, false), changed.after);
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
        qxVariant *const found = kind.find(changed.name);
        if (found && !used.contains(changed.name)
            && isSame(contentsOf(kind, *found), changed.after))
            isAny |= kind.remove(changed.name);
    }
    return isAny;
}

bool qxVariantsChange::edit(const qxVariantKind &kind, const Changed &changed, bool forward)
{
    qxVariant *const found = kind.find(changed.name);
    const Contents &from = forward ? changed.before : changed.after;
    if (!found || !isSame(contentsOf(kind, *found), from))
        return false;
    give(kind, *found, forward ? changed.after : changed.before);
    return true;
}

qxVariantsChange::Contents qxVariantsChange::contentsOf(const qxVariantKind &kind,
                                                        const qxVariant &variant)
{
    return {variant.*kind.sceneName, variant.defaultState, variant.options};
}

void qxVariantsChange::give(const qxVariantKind &kind, qxVariant &variant, const Contents &contents)
{
    variant.*kind.sceneName = contents.sceneName;
    variant.defaultState = contents.defaultState;
    variant.options = contents.options;
}

bool qxVariantsChange::isSame(const Contents &one, const Contents &other)
{
    return one.sceneName == other.sceneName && one.defaultState == other.defaultState
        && std::equal(one.options.begin(), one.options.end(), other.options.begin(),
                      other.options.end(),
                      [](const qxVariantOption &option, const qxVariantOption &second) {
                          return option.name == second.name && option.shortcut == second.shortcut
                              && option.isAction == second.isAction;
                      });
}
