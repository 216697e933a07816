#pragma once

#include "Repair/qxBreak.h"
#include "qxFinding.h"

class QUndoStack;

/// Names that lead nowhere, and what may be meant by them. To look for that takes a while.
namespace qxProblemRepairs {

/// What is broken of these problems, with candidates.
std::vector<qxBreak> of(const qxFindings &findings);
/// Repairs all names of the registry for which it is clear what is meant, in one step. Says how
/// many that were.
int repairClear(QUndoStack &steps);

} // namespace qxProblemRepairs
