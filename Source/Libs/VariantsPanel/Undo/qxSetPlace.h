#pragma once

#include <QHash>
#include <QStringList>

#include <vector>

class qxVariant;
class qxVariantGroup;
class qxVariantSet;
struct qxVariantKind;

/// The position of a set in the registry and in its group. The registry's order is that of the
/// document and of the sets without a group.
struct qxSetPlace {
    QString group; ///< empty for none
    int row = -1; ///< in the group; -1 for the end and for a set without a group
    int index = -1; ///< in the registry; -1 is the end

    bool operator==(const qxSetPlace &other) const
    {
        return group == other.group && row == other.row && index == other.index;
    }
    bool operator!=(const qxSetPlace &other) const { return !(*this == other); }
};

/// Finds and moves sets, groups and variants, without notifications.
namespace qxPlaces {

/// The sets of those names, each of them once; unknown names are passed over.
std::vector<qxVariantSet *> setsNamed(const QStringList &names);
/// The present places of all sets.
QHash<const qxVariantSet *, qxSetPlace> now();

struct Placed {
    qxVariantSet *set;
    qxSetPlace place; ///< after all of them have moved
};

struct PlacedGroup {
    qxVariantGroup *group;
    int index; ///< in the registry, after all of them have moved
};

/// Moves the sets to those places; without a group if theirs no longer exists. All other sets keep
/// their order.
void put(std::vector<Placed> sets);
/// The place of the group in the registry.
int indexOf(const qxVariantGroup &group);
/// Moves the groups to those places in the registry; -1 is the end.
void put(const std::vector<PlacedGroup> &groups);

struct PlacedVariant {
    qxVariant *variant;
    int index; ///< among those of its kind, after all of them have moved
};

/// Moves variants of the kind to those places; -1 is the end.
void put(const qxVariantKind &kind, const std::vector<PlacedVariant> &variants);

} // namespace qxPlaces
