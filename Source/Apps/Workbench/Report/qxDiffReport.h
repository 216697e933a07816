#pragma once

#include "Session/qxFileComparison.h"

class QJsonObject;

/// What differs between two files, for people and for programs.
namespace qxDiffReport {

/// A line of the report.
struct Line {
    int depth; ///< 0 for headings
    QChar sign; ///< '+', '-', '~', '@' for places in a script, or blank
    QString text; ///< a single line
};

/// The report: names of the files, headings, things below them, fields below those, and a line that
/// counts. `brief` leaves out the fields.
QVector<Line> lines(const qxFileComparison &comparison, bool brief = false);
/// The same as a text with line ends.
QString text(const qxFileComparison &comparison, bool brief = false);
/// Prints it to standard output, in colours on a terminal unless the environment variable NO_COLOR
/// is set.
void print(const qxFileComparison &comparison, bool brief);

/// Keys "before", "after" (the files), "groups", "sets", "variants" and "scene". Things have
/// "name", "sort" and "fields", sets "group", variants "kind"; fields have "field", "sort" and, if
/// there is one, "name", "before" and "after". Previews are objects with "bytes", "width" and
/// "height"; a script has its "lines" as well. What differs in the scene has "what", "sort",
/// "names" and, if they are renamed, "oldNames".
QJsonObject json(const qxFileComparison &comparison);

} // namespace qxDiffReport
