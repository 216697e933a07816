#pragma once

#include <QString>

/// Shortcuts of options and sets.
namespace qxHotkey {

/// Splits key-sequence text in the native format into the key code and the modifiers of its first
/// combination; both are 0 for a text that names no key.
void map(const QString &text, int &key, Qt::KeyboardModifiers &modifiers);
/// The key-sequence text for a hotkey of any age: "Ctrl-Shift F1" becomes "Ctrl+Shift+F1".
QString convertOld(const QString &text);

} // namespace qxHotkey
