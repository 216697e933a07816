#pragma once

#include <QString>

/// Texts of files on their way to a terminal: what would steer it is shown as an escape such as
/// \x1b or \u202e. That is every control character, and those that end lines or turn the direction
/// of writing.
namespace qxVisibleText {

/// One line: its line breaks and tabs become \n and \t.
QString line(const QString &text);
/// Several lines: line breaks and tabs stay as they are.
QString lines(const QString &text);
/// A JSON text with its own escapes for what may stand in it, but steers; it means the same.
QString json(const QString &text);
/// The same as `lines` for a text that somebody is asked to trust: nothing in it stays unseen, such
/// as blanks without a width.
QString code(const QString &text);

} // namespace qxVisibleText
