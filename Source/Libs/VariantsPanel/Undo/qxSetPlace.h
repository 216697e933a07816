#pragma once

#include <QHash>
#include <QStringList>

#include <vector>

class qxVariantGroup;
class qxVariantSet;

/// Where a set stands: in the registry, whose order is that of the document and of the sets in no
/// group, and in its group.
struct qxSetPlace {
    QString group; ///< empty for none
    int row = -1; ///< in the group; -1 is the end, and what a set in no group has
    int index = -1; ///< in the registry; -1 is the end

    bool operator==(const qxSetPlace &other) const
    {
        return group == other.group && row == other.row && index == other.index;
    }
    bool operator!=(const qxSetPlace &other) const { return !(*this == other); }
};

/// Finds sets and groups, and brings them to their places. Nothing is announced.
namespace qxPlaces {

/// The sets of those names, each of them once; unknown names are passed over.
std::vector<qxVariantSet *> setsNamed(const QStringList &names);
/// Where all sets of the registry stand now.
QHash<const qxVariantSet *, qxSetPlace> now();

struct Placed {
    qxVariantSet *set;
    qxSetPlace place; ///< where it stands when all of them do
};

struct PlacedGroup {
    qxVariantGroup *group;
    int index; ///< in the registry, when all of them stand
};

/// Brings the sets to those places; a group that is gone is no group. All other sets keep their
/// order.
void put(std::vector<Placed> sets);
/// The place of the group in the registry.
int indexOf(const qxVariantGroup &group);
/// Brings the groups to those places there; -1 is the end.
void put(const std::vector<PlacedGroup> &groups);

} // namespace qxPlaces
