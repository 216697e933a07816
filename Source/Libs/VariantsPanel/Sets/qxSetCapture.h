#pragma once

#include <QString>

class QWidget;
class qxSetEdits;

/// Captures that a user asks for, with a dialog before.
namespace qxSetCapture {

/// Captures the scene into a new set and returns its name; empty when the user thought better of
/// it or nodes stay ambiguous.
QString capture(qxSetEdits *edits, const QString &group, QWidget *parent);
/// Captures the scene into a set that exists: below its target nodes where it has some, else
/// below the root. The old contents come back with undo.
void update(qxSetEdits *edits, const QString &set, QWidget *parent);

} // namespace qxSetCapture
