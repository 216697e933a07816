#pragma once

#include <QString>

class QWidget;
class qxSetEdits;

/// Captures requested by the user, after a dialog.
namespace qxSetCapture {

/// Captures the scene into a new set and returns its name; empty if the user cancelled or nodes
/// stay ambiguous.
QString capture(qxSetEdits *edits, const QString &group, QWidget *parent);
/// Captures the scene into an existing set: below its target nodes if it has some, else below the
/// root. Undo restores the old contents. Returns whether the set got a new preview.
bool update(qxSetEdits *edits, const QString &set, QWidget *parent);

} // namespace qxSetCapture
