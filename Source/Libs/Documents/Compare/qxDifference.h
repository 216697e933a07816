#pragma once

#include <QString>
#include <QVector>

/// How something differs between two documents.
enum class qxDifferenceSort { Added, Removed, Changed, Moved, Renamed };

/// One difference of a group, set or variant. Of what comes or goes as a whole it is told what is
/// in it, as added or removed.
///
/// | field | name | before, after |
/// |---|---|---|
/// | name | | the names of the thing |
/// | group | | the names of the set's groups, empty for none |
/// | place | | the names of the things that it follows, empty for the first |
/// | comment, hotkey, defaultViewpoint, script, preview, base, default | | the texts |
/// | visible, sequential | | true or false |
/// | include | nodes, materials, lights, environment or view | true or false |
/// | a word of a kind | of the variant | states; moved: the variants that it follows |
/// | viewpoint, animation, geometry, target | the name in the list | moved: those that it follows |
/// | snapshot | path of the node | names of materials |
/// | value | the key | values |
/// | clipping | the attribute | its texts |
/// | state | of the later document, if it is there | renamed: the names; moved: those that it
/// follows | | key | of the state | hotkeys |
struct qxFieldDifference {
    QLatin1String field; ///< see above
    qxDifferenceSort sort; ///< of an entry or a text: whether it came, went or became another
    QString name; ///< which one of the field; empty for what a thing has once
    QString before; ///< empty for what was not there
    QString after; ///< empty for what is no longer there
};

/// A group, set or variant that differs.
struct qxThingDifference {
    /// What it is.
    enum Thing { Group, Set, Variant };

    /// What became of it as a whole: added or removed, renamed if its name is another one, moved if
    /// nothing but its place or group is, and else changed.
    qxDifferenceSort sort() const;

    Thing thing; ///< what it is
    int before; ///< its place in the earlier document's list; -1 for none
    int after; ///< its place in the later document's list; -1 for none
    QVector<qxFieldDifference> fields; ///< in the order of the document
};
