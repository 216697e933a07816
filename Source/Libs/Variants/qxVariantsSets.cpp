#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxSetUse.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxFindCache.h"
#include "qxLog.h"
#include "qxNodeUtils.h"
#include "qxOSGWidget.h"
#include "qxSceneLookup.h"
#include "qxScenegraph.h"
#include "qxText.h"

#include <algorithm>
#include <memory>

namespace {

template <class Named>
Named *adopt(qxNamedList<Named> &list, std::unique_ptr<Named> object)
{
    list.append(object.get());
    return object.release();
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

/// Shows the target nodes with all that is below them, up to the first that the scene does not
/// have.
void showTargets(const qxVariantSet &set)
{
    for (const QString &name : set.targetNodeNames) {
        const qxNodePtr node = qxScenegraph::findNode(name.toUtf8().constData());
        if (node == osg::NullFC)
            return;
        qxScenegraph::showNodes(qxNodeUtils::getSubTreeNodes(node));
    }
}

} // namespace

qxVariantSet *qxVariants::createVariantSet(const QString &name, bool notify, qxVariantGroup *group)
{
    if (name.isEmpty())
        return nullptr;
    if (findVariantSet(name)) {
        qxLog::warning("A variant set with that name already exists.");
        return nullptr;
    }
    const QString wanted = name;
    qxVariantSet *const set = adopt(_variantSets, std::make_unique<qxVariantSet>(name));
    if (group)
        group->append(set);
    if (!notify)
        return set;
    qxNotify::variantSetAdded(set);
    return _variantSets.ifHeld(set, wanted);
}

qxVariantSet *qxVariants::findVariantSet(const QString &name)
{
    return _variantSets.find(name);
}

bool qxVariants::removeVariantSet(const QString &name)
{
    if (name.isEmpty())
        return false;
    if (qxVariantSet *set = findVariantSet(name)) {
        _variantSets.take(set);
        qxNotify::variantSetRemoved(set);
        qxSetUse::destroy(set);
    }
    return true;
}

void qxVariants::clearVariantSets()
{
    // Emptied as a whole: searching the groups for one set after the other takes quadratic time.
    for (qxVariantGroup *group : _variantGroups)
        group->clear();
    for (qxVariantSet *set : _variantSets.takeAll())
        qxSetUse::destroy(set);
    qxNotify::variantSetChanged();
}

void qxVariants::clearEmptyVariantSets()
{
    const qxNamedList<qxVariantSet>::Walk walk(_variantSets);
    for (qxVariantSet *set : _variantSets) {
        if (!set->isEmpty())
            continue;
        _variantSets.take(set);
        qxNotify::variantSetRemoved(set);
        qxSetUse::destroy(set);
    }
}

bool qxVariants::hasEmptyVariantSets()
{
    return std::any_of(_variantSets.begin(), _variantSets.end(),
                       [](qxVariantSet *set) { return set->isEmpty(); });
}

void qxVariants::optimizeVariantSets()
{
    const qxFindCache cache(!_variantSets.empty());
    const qxSceneLookup scene; // shared by all: gathering it goes through the whole scene
    for (qxVariantSet *set : _variantSets)
        set->optimize();
}

qxVariantGroup *qxVariants::createVariantGroup(const QString &name, bool notify, bool visible)
{
    if (name.isEmpty())
        return nullptr;
    if (findVariantGroup(name)) {
        qxLog::warning("A variant group with that name already exists.");
        return nullptr;
    }
    const QString wanted = name;
    qxVariantGroup *const group = adopt(_variantGroups, std::make_unique<qxVariantGroup>(name));
    group->visible = visible;
    if (!notify)
        return group;
    qxNotify::variantGroupAdded(group);
    return _variantGroups.ifHeld(group, wanted);
}

qxVariantGroup *qxVariants::findVariantGroup(const QString &name)
{
    return _variantGroups.find(name);
}

bool qxVariants::removeVariantGroup(const QString &name)
{
    if (name.isEmpty())
        return false;
    if (qxVariantGroup *group = findVariantGroup(name)) {
        _variantGroups.take(group);
        qxNotify::variantGroupRemoved(group);
        delete group;
    }
    return true;
}

void qxVariants::clearVariantGroups()
{
    for (qxVariantGroup *group : _variantGroups.takeAll())
        delete group;
    qxNotify::variantGroupChanged();
}

void qxVariants::clearEmptyGroups()
{
    const qxNamedList<qxVariantGroup>::Walk walk(_variantGroups);
    for (std::size_t place = _variantGroups.places(); place-- > 0;) {
        const qxVariantGroup *const group = _variantGroups.at(place);
        if (group && isEmptyGroup(group))
            removeVariantGroup(group->name);
    }
}

bool qxVariants::hasEmptyGroups()
{
    return std::any_of(_variantGroups.begin(), _variantGroups.end(), isEmptyGroup);
}

QString qxVariants::getUniqueVariantSetName(QString base)
{
    return uniqueName(base, _variantSets);
}

QString qxVariants::getUniqueVariantGroupName(QString base)
{
    return uniqueName(base, _variantGroups);
}

void qxVariants::showConnectedVariants(QString setName)
{
    if (qxVariantSet *set = findVariantSet(setName))
        set->showConnectedVariants();
}

void qxVariants::selectVariantSet(const char *name, bool flag)
{
    qxOSGWidget::cancelAntialiasing();
    qxVariantSet *const set = findVariantSet(QString::fromUtf8(name));
    if (!set)
        return;
    const qxSetUse use(*set);
    if (set->inclNodes)
        showTargets(*set);
    set->select(true, flag);
}
