#pragma once

#include "qxDocument.h"

/// The sets of a settled document as a table, for those who keep the data of a product in
/// spreadsheets: a row for each set, a column for each variant, a state in each cell.
///
/// The columns are "Group", "Set", "Comment", then one for each variant, its kind before its name
/// as in "node Roof", then one for each key of the sets' values, as in "value Price". An empty cell
/// means that the set does not have that. An apostrophe in front of a cell says that the rest is a
/// text and no formula; a cell that is to be read as one of these texts gets it: one that begins
/// like a formula, one that begins with an apostrophe itself, and the empty text of an entry.
namespace qxSetTable {

/// How a table is written.
struct Form {
    char separator = ','; ///< of cells
    /// With the mark in front and the ends of lines by which office programs know UTF-8 text.
    bool isForOffice = false;
};

/// How many bytes the table may have, estimated from above: it grows with sets times variants,
/// which no document says in its size.
qint64 mostBytes(const qxDocument &document);
/// The table, UTF-8. The time grows with its cells.
QByteArray write(const qxDocument &document, const Form &form = {});

} // namespace qxSetTable
