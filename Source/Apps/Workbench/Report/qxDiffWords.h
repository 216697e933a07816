#pragma once

#include "Compare/qxDocumentDiff.h"
#include "Compare/qxSceneDiff.h"
#include "Session/qxFileComparison.h"

#include <QSize>

/// Differences in words, for reports.
namespace qxDiffWords {

/// A picture of a set in figures.
struct Picture {
    int bytes = 0; ///< of the encoded picture
    QSize size; ///< in pixels; empty when it is no picture
};

/// "added", "removed", "changed", "moved" or "renamed".
QString word(qxDifferenceSort sort);
/// "+" for what is added, "-" for what is removed, "~" for the rest.
QChar sign(qxDifferenceSort sort);
/// "group", "set" or "variant".
QString word(qxThingDifference::Thing thing);
/// How many things of each sort differ and how, such as "groups: 1 added; sets: 2 changed".
QString summary(const qxFileComparison &comparison);

/// The name of the thing, the later one if it has two, and of a variant its kind before it.
QString title(const qxFileComparison &comparison, const qxThingDifference &thing);
/// The set in the later document, or if it is gone, in the earlier.
const qxDocumentSet &set(const qxFileComparison &comparison, const qxThingDifference &thing);
/// What stands above the thing and others of its sort: "Groups", "Variants", "Sets of group ..." or
/// "Sets in no group".
QString heading(const qxFileComparison &comparison, const qxThingDifference &thing);
/// One line on the field. Of a script without its lines.
QString line(const qxFieldDifference &field);
/// One line on the scene, with the first ten names.
QString line(const qxSceneDifference &difference);

/// The preview of a field, as base64, in figures.
Picture picture(const QString &base64);

} // namespace qxDiffWords
