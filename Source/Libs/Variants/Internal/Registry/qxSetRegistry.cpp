#include "Internal/Registry/qxSetRegistry.h"

#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "qxVariantGroup.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxFindCache.h"
#include "qxLog.h"
#include "qxNodeUtils.h"
#include "qxSceneLookup.h"
#include "qxText.h"

#include <algorithm>
#include <memory>

namespace {

auto &_variantSets = qxVariantLists::_variantSets;
auto &_variantGroups = qxVariantLists::_variantGroups;

/// A new object of that name; null with a warning when the name is taken.
template <class Named>
Named *add(qxNamedList<Named> &list, const QString &name, const char *isTaken)
{
    if (list.find(name)) {
        qxLog::warning("%s", isTaken);
        return nullptr;
    }
    auto object = std::make_unique<Named>(name);
    list.append(object.get());
    return object.release();
}

/// What left the registry has no ties any more, even while an operation keeps it.
void discard(qxVariantSet *set)
{
    if (set->group)
        set->group->remove(set);
    qxDeferredDeletion::bury(set);
}

void discard(qxVariantGroup *group)
{
    group->clear();
    qxDeferredDeletion::bury(group);
}

void remove(qxVariantSet *set)
{
    _variantSets.take(set);
    qxNotify::variantSetRemoved(set);
    discard(set);
}

template <class Named>
QString uniqueName(const QString &base, const qxNamedList<Named> &list)
{
    std::vector<std::string> existing;
    existing.reserve(list.size());
    for (const Named *each : list)
        existing.push_back(qxText::toUtf8(each->name));
    return qxText::fromUtf8(qxNodeUtils::getUniqueName(qxText::toUtf8(base), existing));
}

bool isEmptyGroup(const qxVariantGroup *group)
{
    return group->sets.empty();
}

} // namespace

qxVariantSet *qxSetRegistry::createSet(const QString &name, bool notify, qxVariantGroup *group)
{
    if (name.isEmpty())
        return nullptr;
    const qxDeferredDeletion deferred;
    auto *const set = add(_variantSets, name, "A variant set with that name already exists.");
    if (!set)
        return nullptr;
    if (group)
        group->append(set);
    if (notify)
        qxNotify::variantSetAdded(set);
    return _variantSets.contains(set) ? set : nullptr;
}

bool qxSetRegistry::removeSet(const QString &name)
{
    if (name.isEmpty())
        return false;
    if (qxVariantSet *set = _variantSets.find(name))
        remove(set);
    return true;
}

void qxSetRegistry::clearSets()
{
    // Emptied as a whole: searching the groups for one set after the other takes quadratic time.
    for (qxVariantGroup *group : _variantGroups)
        group->clear();
    for (qxVariantSet *set : _variantSets.takeAll())
        discard(set);
    qxNotify::variantSetChanged();
}

void qxSetRegistry::clearEmptySets()
{
    const qxNamedList<qxVariantSet>::Walk walk(_variantSets);
    for (qxVariantSet *set : _variantSets) {
        if (set->isEmpty())
            remove(set);
    }
}

bool qxSetRegistry::hasEmptySets()
{
    return std::any_of(_variantSets.begin(), _variantSets.end(),
                       [](qxVariantSet *set) { return set->isEmpty(); });
}

void qxSetRegistry::optimizeSets()
{
    const qxFindCache cache(!_variantSets.empty());
    const qxSceneLookup scene; // shared by all: gathering it goes through the whole scene
    for (qxVariantSet *set : _variantSets)
        set->optimize();
}

qxVariantGroup *qxSetRegistry::createGroup(const QString &name, bool notify, bool visible)
{
    if (name.isEmpty())
        return nullptr;
    const qxDeferredDeletion deferred;
    auto *const group = add(_variantGroups, name, "A variant group with that name already exists.");
    if (!group)
        return nullptr;
    group->visible = visible;
    if (notify)
        qxNotify::variantGroupAdded(group);
    return _variantGroups.contains(group) ? group : nullptr;
}

bool qxSetRegistry::removeGroup(const QString &name)
{
    if (name.isEmpty())
        return false;
    if (qxVariantGroup *group = _variantGroups.find(name)) {
        _variantGroups.take(group);
        qxNotify::variantGroupRemoved(group);
        discard(group);
    }
    return true;
}

void qxSetRegistry::clearGroups()
{
    for (qxVariantGroup *group : _variantGroups.takeAll())
        discard(group);
    qxNotify::variantGroupChanged();
}

void qxSetRegistry::clearEmptyGroups()
{
    const qxNamedList<qxVariantGroup>::Walk walk(_variantGroups);
    for (std::size_t place = _variantGroups.places(); place-- > 0;) {
        const qxVariantGroup *const group = _variantGroups.at(place);
        if (group && isEmptyGroup(group))
            removeGroup(group->name);
    }
}

bool qxSetRegistry::hasEmptyGroups()
{
    return std::any_of(_variantGroups.begin(), _variantGroups.end(), isEmptyGroup);
}

QString qxSetRegistry::uniqueSetName(const QString &base)
{
    return uniqueName(base, _variantSets);
}

QString qxSetRegistry::uniqueGroupName(const QString &base)
{
    return uniqueName(base, _variantGroups);
}

qxVariantGroup *qxSetRegistry::findOrCreateGroup(const QString &name)
{
    if (qxVariantGroup *known = _variantGroups.find(name))
        return known;
    const bool isOrdinary = name != QLatin1String("Render Queue");
    return createGroup(uniqueGroupName(name), isOrdinary, isOrdinary);
}
