#pragma once

#include <QString>

/// Makes texts of files safe for a terminal: control characters and those that end lines or change
/// the direction of writing become escapes such as `\x1b` or `\u202e`.
namespace qxVisibleText {

/// One line: its line breaks and tabs become `\n` and `\t`.
QString line(const QString &text);
/// Several lines: line breaks and tabs stay as they are.
QString lines(const QString &text);
/// A JSON text with such characters as JSON escapes; its meaning stays the same.
QString json(const QString &text);
/// As `lines`, for a text that the user is asked to trust: invisible characters, such as zero-width
/// blanks, are escaped, too.
QString code(const QString &text);

} // namespace qxVisibleText
