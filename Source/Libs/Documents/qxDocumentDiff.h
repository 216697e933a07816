#pragma once

#include "qxDocument.h"

#include <QVector>

class qxDocumentPairs;

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

    /// Added, removed, or else changed: what of it moved or was renamed its fields tell.
    qxDifferenceSort sort() const
    {
        return before < 0 ? qxDifferenceSort::Added
            : after < 0   ? qxDifferenceSort::Removed
                          : qxDifferenceSort::Changed;
    }

    Thing thing; ///< what it is
    int before; ///< its place in the earlier document's list; -1 for none
    int after; ///< its place in the later document's list; -1 for none
    QVector<qxFieldDifference> fields; ///< in the order of the document
};

/// What differs between two settled documents: nothing if and only if their texts are the same.
///
/// Renamed things are found as qxDocumentPairs does it; names of them in others are no differences.
/// Of a list in another order as few entries as possible are moved. It takes n log n.
struct qxDocumentDiff {
    /// Compares the documents.
    static qxDocumentDiff of(const qxDocument &before, const qxDocument &after);

    /// Whether the texts of the documents are the same.
    bool isEmpty() const { return things.isEmpty(); }

    /// Groups, sets, then variants, each in the order of the later document; what is gone follows
    /// what it followed.
    QVector<qxThingDifference> things;
};
