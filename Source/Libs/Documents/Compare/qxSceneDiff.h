#pragma once

#include "Compare/qxDifference.h"

#include <QJsonObject>
#include <QStringList>

/// Things of one sort that differ in one way between two scenes.
struct qxSceneDifference {
    QString what; ///< "node", "mesh", "extension" and so on, or "buffers", which have no names
    qxDifferenceSort sort; ///< added, removed, renamed or changed
    QStringList names; ///< in the order of the scene; empty ones for what has no name
    QStringList oldNames = QStringList(); ///< of what is renamed, name by name
};

/// What differs between two scene files apart from their variants, by the JSON of glTF 2.0 alone.
///
/// Things are the same when their names are; what refers to another thing refers to its name, so
/// that nothing differs because something else was put in front of it. What got another name and is
/// otherwise the same, at the same place of its list, is renamed; what refers to it is the same. Of
/// data in buffers only the description counts, and whether the buffers themselves are the same.
/// What the file says of itself (asset, extensionsUsed, extensionsRequired) does not count. It
/// takes the time that writing the JSON takes.
namespace qxSceneDiff {

/// The differences: what is renamed, then all else, sort by sort of things. "buffers" are for the
/// caller to add, who has them.
QVector<qxSceneDifference> of(const QJsonObject &before, const QJsonObject &after);

} // namespace qxSceneDiff
