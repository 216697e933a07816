#pragma once

#include "Repair/qxBreak.h"
#include "qxSetEntry.h"

class QMenu;
class QUndoStack;

/// Repairs of what entries of sets name in vain.
namespace qxEntryRepairs {

/// What does not work of the entry: what it names, its state, or what its variant drives. Takes
/// time in proportion to scene and registry.
std::vector<qxBreak> of(const qxSetEntry &entry);
/// Fills the menu with what may be meant instead; a repair is an undo step for all places that have
/// the name.
void fill(QMenu &menu, QUndoStack &steps, const qxSetEntry &entry);

} // namespace qxEntryRepairs
