#pragma once

#include <QString>

/// What the bytes of a table of sets are as a text.
namespace qxSetTableText {

/// Why they are no text in UTF-8, which may have the mark in front; empty when they are one.
QString flawOf(const QByteArray &table);
/// What separates the cells: with it the first row has a column for the names of sets, or at least
/// the most columns.
QChar separatorOf(const QString &text);

} // namespace qxSetTableText
