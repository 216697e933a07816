#pragma once

#include <QString>

class QKeySequence;

/// The keys of sets and options as texts. People read them in the language of the interface, sets
/// and files hold them in none, so that a scene saved in one language has its keys in another.
namespace qxKeyText {

/// What people read for the text that a set holds; a text that names no key stays as it is.
QString shown(const QString &held);
/// The text that a set holds for the first combination; empty for none.
QString held(const QKeySequence &key);

} // namespace qxKeyText
