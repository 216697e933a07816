#pragma once

#include "qxFinding.h"

/// How problems are told in the language of the window. Reports have the message of the finding.
namespace qxProblemWords {

/// Such as "error".
QString severity(qxSeverity severity);
/// What was found, without what it belongs to.
QString text(const qxFinding &finding);
/// What it belongs to, such as "Set Sport: Wheels, Alloy".
QString place(const qxFindingPlace &place);
/// What it means and what can be done, as HTML.
QString toolTip(const qxFinding &finding);

} // namespace qxProblemWords
