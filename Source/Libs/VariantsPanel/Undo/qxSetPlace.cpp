#include "qxSetPlace.h"

#include "qxVariantGroup.h"
#include "qxVariantKind.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include <algorithm>
#include <set>

namespace {

/// An object of the registry and the place that it is to have there.
template <class T>
struct Indexed {
    T *object;
    int index;
};

template <class List, class T>
bool isInPlace(const List &list, const Indexed<T> &each)
{
    return each.index >= 0 && std::size_t(each.index) < list.size()
        && list[std::size_t(each.index)] == each.object;
}

/// The order of the objects when some of them have got their places among the others.
template <class T>
std::vector<T *> orderWith(const std::vector<T *> &all, std::vector<Indexed<T>> placed)
{
    std::stable_sort(placed.begin(), placed.end(), [](const auto &one, const auto &other) {
        return unsigned(one.index) < unsigned(other.index); // -1 comes last
    });
    std::set<T *> moving;
    for (const Indexed<T> &each : placed)
        moving.insert(each.object);
    std::vector<T *> order;
    auto next = placed.begin();
    for (T *object : all) {
        if (moving.count(object))
            continue;
        for (; next != placed.end() && unsigned(next->index) <= order.size(); ++next)
            order.push_back(next->object);
        order.push_back(object);
    }
    for (; next != placed.end(); ++next)
        order.push_back(next->object);
    return order;
}

/// Unless all of them are where they should be.
template <class T>
void arrange(qxNamedList<T> &list, const std::vector<Indexed<T>> &placed)
{
    if (!std::all_of(placed.begin(), placed.end(),
                     [&list](const Indexed<T> &each) { return isInPlace(list, each); }))
        list.arrange(orderWith(std::vector<T *>(list.begin(), list.end()), placed));
}

} // namespace

std::vector<qxVariantSet *> qxPlaces::setsNamed(const QStringList &names)
{
    std::vector<qxVariantSet *> sets;
    std::set<const qxVariantSet *> known;
    for (const QString &name : names) {
        qxVariantSet *const set = qxVariants::findVariantSet(name);
        if (set && known.insert(set).second)
            sets.push_back(set);
    }
    return sets;
}

QHash<const qxVariantSet *, qxSetPlace> qxPlaces::now()
{
    QHash<const qxVariantSet *, qxSetPlace> places;
    int index = 0;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        places.insert(set, {QString(), -1, index++});
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        int row = 0;
        for (const qxVariantSet *set : group->sets)
            places.insert(set, {group->name, row++, places.value(set).index});
    }
    return places;
}

void qxPlaces::put(std::vector<Placed> sets)
{
    std::vector<Indexed<qxVariantSet>> indexed;
    for (const Placed &each : sets) {
        if (each.set->group)
            each.set->group->remove(each.set);
        indexed.push_back({each.set, each.place.index});
    }
    arrange(qxVariants::_variantSets, std::move(indexed));
    // From the front: each finds its place among those that stand already.
    std::stable_sort(sets.begin(), sets.end(), [](const Placed &one, const Placed &other) {
        return unsigned(one.place.row) < unsigned(other.place.row);
    });
    for (const Placed &each : sets) {
        qxVariantGroup *const group = qxVariants::findVariantGroup(each.place.group);
        if (!group)
            continue;
        const std::size_t row = std::min(group->sets.size(), std::size_t(unsigned(each.place.row)));
        group->insert(group->sets.begin() + std::ptrdiff_t(row), each.set);
    }
}

int qxPlaces::indexOf(const qxVariantGroup &group)
{
    const auto &all = qxVariants::_variantGroups;
    return int(std::distance(all.begin(), std::find(all.begin(), all.end(), &group)));
}

void qxPlaces::put(const std::vector<PlacedGroup> &groups)
{
    std::vector<Indexed<qxVariantGroup>> indexed;
    for (const PlacedGroup &each : groups)
        indexed.push_back({each.group, each.index});
    arrange(qxVariants::_variantGroups, std::move(indexed));
}

void qxPlaces::put(const qxVariantKind &kind, const std::vector<PlacedVariant> &variants)
{
    std::vector<qxVariant *> all;
    kind.visit([&all](qxVariant &variant) { all.push_back(&variant); });
    std::vector<Indexed<qxVariant>> indexed;
    for (const PlacedVariant &each : variants)
        indexed.push_back({each.variant, each.index});
    kind.arrange(orderWith(all, std::move(indexed)));
}
