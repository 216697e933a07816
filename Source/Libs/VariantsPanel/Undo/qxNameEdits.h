#pragma once

#include "Rename/qxRegistryRename.h"
#include "Repair/qxBreak.h"

class QUndoStack;

/// Edits of names in the whole registry and in the scene, each of them one undo step. Undo touches
/// only what is still as the edit left it; else the step is dropped.
namespace qxNameEdits {

/// Renames a thing with everything that names it. `word` says what it is, see qxRenameWords. When
/// it is refused, nothing changes, and the outcome says why.
qxRegistryRename::Outcome rename(QUndoStack &steps, const QString &word,
                                 const qxRenameRequest &request);
/// What of the registry does not work in the present scene, with candidates.
std::vector<qxBreak> breaks();
/// Puts the name in all places of what is broken. False when nothing of it is there any more.
bool repair(QUndoStack &steps, const qxBreak &broken, const QString &name);

} // namespace qxNameEdits
