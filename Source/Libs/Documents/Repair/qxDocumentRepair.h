#pragma once

#include "Repair/qxBreak.h"

/// Finds what no longer works in the host's scene, and what it may have become.
namespace qxDocumentRepair {

/// What of a settled document does not work in the present scene, in the order of the document,
/// with candidates. Every name comes once. States of variants whose scene object is missing come up
/// once that is repaired. The history may be null.
std::vector<qxBreak> find(const qxDocument &document, const qxRepairHistory *history = nullptr);
/// Puts the first candidate of each in all its places, all at once; the document stays settled.
void apply(qxDocument &document, const std::vector<qxBreak> &repaired);
/// Repairs what is clear, and what comes up by it, until nothing more is. Answers what was
/// repaired, each with the candidate that was taken as its only one.
std::vector<qxBreak> applyClear(qxDocument &document, const qxRepairHistory *history = nullptr);

} // namespace qxDocumentRepair
