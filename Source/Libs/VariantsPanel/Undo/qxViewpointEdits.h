#pragma once

#include "qxUberCameraPool.h"

#include <QString>

class QUndoStack;

/// The user's edits of viewpoints, each of them one undo step. qxPanelChanges::sceneRestored tells
/// of them. Renaming is a matter of qxNameEdits.
namespace qxViewpointEdits {

/// Stores the camera of the main view as a viewpoint; a name that is taken gets a number. Returns
/// the name; empty when there is no camera or no service for cameras.
QString capture(QUndoStack &steps, const QString &name);
/// Removes the first viewpoint of that name; those behind it get the ids before theirs. Sets that
/// name it keep the name. False when there is none.
bool remove(QUndoStack &steps, const QString &name);

///@{
/// All viewpoints in order. The pool itself can only be emptied or get more.
std::vector<qxUberCamera> all();
void setAll(const std::vector<qxUberCamera> &viewpoints);
///@}

} // namespace qxViewpointEdits
