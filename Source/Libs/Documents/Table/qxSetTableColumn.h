#pragma once

#include "qxDocument.h"

/// What a column of a table of sets holds, and how its cells are written.
struct qxSetTableColumn {
    /// What a column can hold of a set.
    enum What { Group, Set, Comment, Variant, Value };

    /// The words of the first three columns.
    static const QStringList &words();
    /// The first words of the others: those of the kinds, and "value".
    static QStringList prefixes();
    /// All columns that the document gives reason for, in the order of a table. Variants that only
    /// sets know come behind the others.
    static std::vector<qxSetTableColumn> of(const qxDocument &document);
    /// The column with that title; one of the first three in any case of letters. False for none.
    static bool find(const QString &title, qxSetTableColumn &column);

    QString title() const; ///< the cell in the first row

    What what; ///< what it holds
    const qxVariantKind *kind; ///< of a variant; else null
    QString name; ///< of a variant, or a key of values; else empty
};

/// Texts in cells, see qxSetTable.
namespace qxSetTableCell {

/// The cell for a text.
QString of(const QString &text);
/// The text in a cell that is not empty.
QString text(const QString &cell);

} // namespace qxSetTableCell
