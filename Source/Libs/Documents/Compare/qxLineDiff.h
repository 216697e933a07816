#pragma once

#include <QStringList>
#include <QVector>

/// A line of one of two texts, or of both.
struct qxLine {
    /// Where it stands.
    enum Sort { Kept, Removed, Added };

    Sort sort; ///< where it stands
    QString text; ///< without its end
};

/// Compares texts line by line: lines that each text has once are found, as many as are in one
/// order, and the same again between them. It takes n log n at worst, whatever the texts are.
namespace qxLineDiff {

/// All lines of both; what is removed stands before what is added in its place.
QVector<qxLine> of(const QString &before, const QString &after);
/// The lines that differ, each with up to three around it, in the unified form of patches: "@@ -1,4
/// +1,5 @@" and lines that begin with a blank, "-" or "+". Empty for equal texts.
QStringList unified(const QString &before, const QString &after);

} // namespace qxLineDiff
