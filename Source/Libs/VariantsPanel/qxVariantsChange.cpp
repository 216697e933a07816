#include "qxVariantsChange.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxController.h"

#include <QSet>

#include <algorithm>
#include <functional>

namespace {

typedef std::function<void(qxVariant &)> Visit;

/// What the kinds differ in.
struct Access {
    void (*visit)(const Visit &each);
    qxVariant *(*find)(const QString &name);
    qxVariant *(*create)(const QString &name);
    bool (*remove)(const QString &name);
    QString &(*sceneName)(qxVariant &variant);
    const qxStateList qxVariantSet::*states; ///< references to its variants
    const char *changed; ///< the announcement
    int flag; ///< of it
};

template <class Variant, auto &list, QString Variant::*sceneName,
          Variant *(*create)(const QString &, bool), bool (*remove)(const QString &)>
Access accessOf(const qxStateList qxVariantSet::*states, const char *changed, int flag)
{
    return {
        [](const Visit &visit) {
            for (Variant *each : list)
                visit(*each);
        },
        [](const QString &name) -> qxVariant * { return list.find(name); },
        [](const QString &name) -> qxVariant * { return create(name, false); },
        remove,
        [](qxVariant &variant) -> QString & { return static_cast<Variant &>(variant).*sceneName; },
        states,
        changed,
        flag};
}

// A list, not a procedure.
const Access &accessOf(int kind)
{
    typedef qxVariants All;
    static const Access kinds[] = {
        accessOf<qxNodeVariant, All::_nodeVariants, &qxNodeVariant::nodeName,
                 &All::createNodeVariant, &All::removeNodeVariant>(&qxVariantSet::nodeVariants,
                                                                   "nodeVariantChanged", 1),
        accessOf<qxMaterialVariant, All::_materialVariants, &qxMaterialVariant::switchMaterialName,
                 &All::createMaterialVariant, &All::removeMaterialVariant>(
            &qxVariantSet::materialVariants, "materialVariantChanged", 1),
        accessOf<qxLightVariant, All::_lightVariants, &qxLightVariant::lightName,
                 &All::createLightVariant, &All::removeLightVariant>(&qxVariantSet::lightVariants,
                                                                     "lightVariantChanged", 1),
        accessOf<qxOverlayVariant, All::_overlayVariants, &qxOverlayVariant::overlayName,
                 &All::createOverlayVariant, &All::removeOverlayVariant>(
            &qxVariantSet::overlayVariants, "overlayVariantChanged", 1),
        accessOf<qxTransformVariant, All::_transformVariants, &qxTransformVariant::nodeName,
                 &All::createTransformVariant, &All::removeTransformVariant>(
            &qxVariantSet::transformVariants, "transformVariantChanged", 0),
    };
    return kinds[kind];
}

/// The variants of the kind that sets refer to.
QSet<QString> usedOf(int kind)
{
    QSet<QString> used;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        for (const qxVariantState &state : set->*accessOf(kind).states)
            used.insert(state.variant);
    }
    return used;
}

} // namespace

qxVariantsChange::qxVariantsChange()
{
    for (int kind = 0; kind < KindCount; ++kind) {
        accessOf(kind).visit([&](qxVariant &variant) {
            m_kinds[kind].noted.insert(variant.name, contentsOf(kind, variant));
        });
    }
}

void qxVariantsChange::finish()
{
    for (int kind = 0; kind < KindCount; ++kind) {
        Kind &noted = m_kinds[kind];
        accessOf(kind).visit([&](qxVariant &variant) {
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
    for (int kind = 0; kind < KindCount; ++kind) {
        bool isAny = forward ? bring(kind) : takeBack(kind);
        for (const Changed &changed : m_kinds[kind].edited)
            isAny |= edit(kind, changed, forward);
        if (isAny)
            qxController::call(accessOf(kind).changed, accessOf(kind).flag);
    }
}

bool qxVariantsChange::bring(int kind) const
{
    const Access &access = accessOf(kind);
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
    const Access &access = accessOf(kind);
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
    qxVariant *const found = accessOf(kind).find(changed.name);
    const Contents &from = forward ? changed.before : changed.after;
    if (!found || !isSame(contentsOf(kind, *found), from))
        return false;
    give(kind, *found, forward ? changed.after : changed.before);
    return true;
}

qxVariantsChange::Contents qxVariantsChange::contentsOf(int kind, qxVariant &variant)
{
    return {accessOf(kind).sceneName(variant), variant.defaultState, variant.options};
}

void qxVariantsChange::give(int kind, qxVariant &variant, const Contents &contents)
{
    accessOf(kind).sceneName(variant) = contents.sceneName;
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
