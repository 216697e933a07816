#include "qxVariantGroup.h"
#include "qxVariants.h"

#include "qxSetEdits.h"
#include "qxSetUndoSteps.h"

#include <algorithm>

namespace {

typedef std::vector<qxVariantSet *> Sets;
typedef std::vector<qxVariantGroup *> Groups;

template <class T>
bool contains(const std::vector<T *> &objects, const T *object)
{
    return std::find(objects.begin(), objects.end(), object) != objects.end();
}

/// The sets that stand in one group, or in none for null.
Sets siblingsIn(const qxVariantGroup *group)
{
    if (group)
        return group->sets;
    Sets sets;
    for (qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->group)
            sets.push_back(set);
    }
    return sets;
}

Groups visibleOf(const Groups &groups)
{
    Groups visible;
    std::copy_if(groups.begin(), groups.end(), std::back_inserter(visible),
                 [](const qxVariantGroup *group) { return group->visible; });
    return visible;
}

/// The first object from `before` on that stays where it is; null for the end.
template <class T>
T *stayingFrom(const std::vector<T *> &objects, const T *before, const std::vector<T *> &moved)
{
    const auto stays = [&moved](const T *object) { return !contains(moved, object); };
    const auto first = std::find(objects.begin(), objects.end(), before);
    const auto found = std::find_if(first, objects.end(), stays);
    return found == objects.end() ? nullptr : *found;
}

/// The objects with the moved ones before `next`.
template <class T>
std::vector<T *> movedBefore(const std::vector<T *> &objects, const T *next,
                             const std::vector<T *> &moved)
{
    std::vector<T *> order;
    for (T *object : objects) {
        if (object == next)
            order.insert(order.end(), moved.begin(), moved.end());
        if (!contains(moved, object))
            order.push_back(object);
    }
    if (!next)
        order.insert(order.end(), moved.begin(), moved.end());
    return order;
}

/// The objects with those that are `chosen` one place further up; those at the top stay.
template <class T>
std::vector<T *> raised(std::vector<T *> objects, const std::vector<T *> &chosen)
{
    for (std::size_t place = 1; place < objects.size(); ++place) {
        if (contains(chosen, objects[place]) && !contains(chosen, objects[place - 1]))
            std::swap(objects[place], objects[place - 1]);
    }
    return objects;
}

template <class T>
std::vector<T *> shifted(std::vector<T *> objects, const std::vector<T *> &chosen, bool down)
{
    if (!down)
        return raised(std::move(objects), chosen);
    std::reverse(objects.begin(), objects.end());
    objects = raised(std::move(objects), chosen);
    std::reverse(objects.begin(), objects.end());
    return objects;
}

template <class List>
auto allOf(const List &list)
{
    return std::vector<std::decay_t<decltype(list.front())>>(list.begin(), list.end());
}

/// The registry's order after the objects of `order` have taken each other's places.
template <class List, class T>
std::vector<T *> reordered(const List &list, const std::vector<T *> &order)
{
    std::vector<T *> all = allOf(list);
    auto next = order.begin();
    for (T *&object : all) {
        if (contains(order, object))
            object = *next++;
    }
    return all;
}

/// What moves when the sets of a group stand in that order.
std::vector<qxSetsMove::Part> movesTo(const qxVariantGroup &group, const Sets &order)
{
    const auto places = qxPlaces::now();
    std::vector<qxSetsMove::Part> parts;
    for (std::size_t row = 0; row < order.size(); ++row) {
        const qxSetPlace from = places.value(order[row]);
        const qxSetPlace to{group.name, int(row), from.index};
        if (from != to)
            parts.push_back({order[row]->name, from, to});
    }
    return parts;
}

/// What moves when the registry has that order, and the `moved` ones stand in no group.
std::vector<qxSetsMove::Part> movesTo(const Sets &registry, const Sets &moved)
{
    const auto places = qxPlaces::now();
    std::vector<qxSetsMove::Part> parts;
    for (qxVariantSet *set : moved) {
        const auto place = std::find(registry.begin(), registry.end(), set);
        const qxSetPlace to{QString(), -1, int(place - registry.begin())};
        const qxSetPlace from = places.value(set);
        if (from != to)
            parts.push_back({set->name, from, to});
    }
    return parts;
}

std::vector<qxGroupsMove::Part> movesTo(const Groups &registry)
{
    std::vector<qxGroupsMove::Part> parts;
    for (std::size_t index = 0; index < registry.size(); ++index) {
        const int from = qxPlaces::indexOf(*registry[index]);
        if (from != int(index))
            parts.push_back({registry[index]->name, from, int(index)});
    }
    return parts;
}

void push(QUndoStack &stack, std::vector<qxSetsMove::Part> parts, const Sets &moved)
{
    if (parts.empty())
        return;
    const QString text = moved.size() == 1
        ? qxSetEdits::tr("Move \"%1\"").arg(moved.front()->name)
        : qxSetEdits::tr("Move %n sets", nullptr, int(moved.size()));
    stack.push(new qxSetsMove(text, std::move(parts)));
}

void push(QUndoStack &stack, std::vector<qxGroupsMove::Part> parts, const QString &group)
{
    if (!parts.empty())
        stack.push(
            new qxGroupsMove(qxSetEdits::tr("Move group \"%1\"").arg(group), std::move(parts)));
}

} // namespace

void qxSetEdits::moveSets(const QStringList &sets, const QString &group, const QString &before)
{
    const qxVariantGroup *const target = qxVariants::findVariantGroup(group);
    const Sets moved = qxPlaces::setsNamed(sets);
    if (moved.empty() || (!target && !group.isEmpty()))
        return;
    const Sets siblings = siblingsIn(target);
    const qxVariantSet *const next =
        stayingFrom<qxVariantSet>(siblings, qxVariants::findVariantSet(before), moved);
    const Sets order = movedBefore(siblings, next, moved);
    if (order == siblings)
        return;
    push(m_stack,
         target ? movesTo(*target, order)
                : movesTo(movedBefore(allOf(qxVariants::_variantSets), next, moved), moved),
         moved);
}

void qxSetEdits::shiftSets(const QStringList &sets, bool down)
{
    const Sets chosen = qxPlaces::setsNamed(sets);
    std::vector<qxSetsMove::Part> parts;
    std::vector<const qxVariantGroup *> done;
    for (const qxVariantSet *set : chosen) {
        const qxVariantGroup *const group = set->group;
        if (std::find(done.begin(), done.end(), group) != done.end())
            continue;
        done.push_back(group);
        const Sets order = shifted(siblingsIn(group), chosen, down);
        const auto more = group ? movesTo(*group, order)
                                : movesTo(reordered(qxVariants::_variantSets, order), order);
        parts.insert(parts.end(), more.begin(), more.end());
    }
    push(m_stack, std::move(parts), chosen);
}

void qxSetEdits::moveGroups(const QStringList &groups, const QString &before)
{
    Groups moved;
    for (const QString &name : groups) {
        if (qxVariantGroup *group = qxVariants::findVariantGroup(name))
            moved.push_back(group);
    }
    const Groups all = allOf(qxVariants::_variantGroups);
    const qxVariantGroup *const next =
        stayingFrom<qxVariantGroup>(all, qxVariants::findVariantGroup(before), moved);
    const Groups order = movedBefore(all, next, moved);
    // A place that differs by hidden groups alone is the same, unless one of them was meant.
    const bool isAmongShown = !next || next->visible;
    if (moved.empty() || (isAmongShown && visibleOf(order) == visibleOf(all)))
        return;
    push(m_stack, movesTo(order), groups.first());
}

void qxSetEdits::shiftGroup(const QString &group, bool down)
{
    qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found)
        return;
    const Groups order = shifted(visibleOf(allOf(qxVariants::_variantGroups)), Groups{found}, down);
    push(m_stack, movesTo(reordered(qxVariants::_variantGroups, order)), group);
}
