#pragma once

#include "qxDocument.h"

/// Brings a table of sets, see qxSetTable, back into the document that it is of.
///
/// A row edits the set of its name, or makes one: at the end of its group, which is made, too,
/// where there is none. Another group moves the set there. An empty cell drops the set's entry of
/// that variant; entries that stay keep their order, new ones follow in the order of the columns.
/// Sets without a row, and what no column is about, stay as they are.
///
/// A cell that says what the document says is never wrong. Another state must be an option of the
/// variant, or one that a set gives it already.
namespace qxSetTableReader {

/// What is wrong in a table.
struct Flaw {
    QString cell; ///< as spreadsheets call it, such as "D7"; empty for the table as a whole
    QString
        reason; ///< a sentence in English without its full stop: what is wrong, what may be meant
};

/// What a table makes of a document.
struct Reading {
    qxDocument document; ///< settled; of no use when there are flaws
    std::vector<Flaw> flaws; ///< row by row, up to a thousand
    int furtherFlaws = 0; ///< those beyond
    int rows = 0; ///< those of sets
};

/// How much memory reading it may take, in bytes, estimated from above: a few bytes make a set.
qint64 mostMemory(const QByteArray &table);
/// Reads UTF-8, with or without the mark in front; commas, semicolons or tabs separate the cells.
/// All flaws are found in one go. The time grows with table and document.
Reading read(const QByteArray &table, const qxDocument &document);

} // namespace qxSetTableReader
