#include "qxVariantsChange.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxPanelChanges.h"

#include <QSet>

#include <algorithm>

namespace {

/// The variants of the kind that sets refer to.
QSet<QString> usedOf(int kind)
{
    QSet<QString> used;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        for (const qxVariantState &state : set->*qxKindAccess::of(kind).states)
            used.insert(state.variant);
    }
    return used;
}

} // namespace

qxVariantsChange::qxVariantsChange()
{
    for (int kind = 0; kind < qxKindAccess::Count; ++kind) {
        qxKindAccess::of(kind).visit([&](qxVariant &variant) {
            m_kinds[kind].noted.insert(variant.name, contentsOf(kind, variant));
        });
    }
}

void qxVariantsChange::finish()
{
    for (int kind = 0; kind < qxKindAccess::Count; ++kind) {
        Kind &noted = m_kinds[kind];
        qxKindAccess::of(kind).visit([&](qxVariant &variant) {
            const Contents after = contentsOf(kind, variant);
            const auto before = noted.noted.constFind(variant.name);
            if (before == noted.noted.constEnd())
                noted.come.push_back({variant.name, {}, after});
            else if (!isSame(*before, after))
                noted.edited.push_back({variant.name, *before, after});
        });
        noted.noted.clear();
    }
}

void qxVariantsChange::apply(bool forward) const
{
    bool isAny = false;
    for (int kind = 0; kind < qxKindAccess::Count; ++kind) {
        isAny |= forward ? bring(kind) : takeBack(kind);
        for (const Changed &changed : m_kinds[kind].edited)
            isAny |= edit(kind, changed, forward);
    }
    if (isAny)
        emit qxPanelChanges::the().variantsEdited();
}

bool qxVariantsChange::bring(int kind) const
{
    const qxKindAccess &access = qxKindAccess::of(kind);
    bool isAny = false;
    for (const Changed &changed : m_kinds[kind].come) {
        if (access.find(changed.name))
            continue;
        give(kind, *access.create(changed.name), changed.after);
        isAny = true;
    }
    return isAny;
}

bool qxVariantsChange::takeBack(int kind) const
{
    if (m_kinds[kind].come.empty())
        return false;
    const qxKindAccess &access = qxKindAccess::of(kind);
    const QSet<QString> used = usedOf(kind);
    bool isAny = false;
    for (const Changed &changed : m_kinds[kind].come) {
        qxVariant *const found = access.find(changed.name);
        if (found && !used.contains(changed.name)
            && isSame(contentsOf(kind, *found), changed.after))
            isAny |= access.remove(changed.name);
    }
    return isAny;
}

bool qxVariantsChange::edit(int kind, const Changed &changed, bool forward)
{
    qxVariant *const found = qxKindAccess::of(kind).find(changed.name);
    const Contents &from = forward ? changed.before : changed.after;
    if (!found || !isSame(contentsOf(kind, *found), from))
        return false;
    give(kind, *found, forward ? changed.after : changed.before);
    return true;
}

qxVariantsChange::Contents qxVariantsChange::contentsOf(int kind, qxVariant &variant)
{
    return {qxKindAccess::of(kind).sceneName(variant), variant.defaultState, variant.options};
}

void qxVariantsChange::give(int kind, qxVariant &variant, const Contents &contents)
{
    qxKindAccess::of(kind).sceneName(variant) = contents.sceneName;
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
