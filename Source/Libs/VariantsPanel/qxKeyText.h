#pragma once

#include <QString>

class QKeySequence;

/// Hotkeys of sets and options as texts. They are shown in the language of the interface; sets and
/// files hold the English form, so that a scene works in every language.
namespace qxKeyText {

/// The text to show for the text that a set holds; one that is no hotkey stays as it is.
QString shown(const QString &held);
/// The text that a set holds for the first combination; empty for none.
QString held(const QKeySequence &key);

} // namespace qxKeyText
