#pragma once

#include "qxFinding.h"

/// The ways in which findings are printed to standard output. `file` is the scene they belong to.
namespace qxLintReport {

/// A line for each finding, and one that counts them.
void print(const qxFindings &findings);
/// Keys "file", "findings" (objects with "code", "severity", "message", "path", "line" and
/// "column"), "errors", "warnings" and "hints".
void printJson(const QString &file, const qxFindings &findings);
/// A test case for each code of the linter. Errors fail theirs; what else was found is its output.
void printJUnit(const QString &file, const qxFindings &findings);

/// How many findings weigh that much.
int count(const qxFindings &findings, qxSeverity severity);

} // namespace qxLintReport
