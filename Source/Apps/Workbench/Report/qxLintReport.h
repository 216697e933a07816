#pragma once

#include "qxFinding.h"

/// Prints findings to standard output in several formats. `file` is their scene.
namespace qxLintReport {

/// A line for each finding, and one that counts them.
void print(const qxFindings &findings);
/// Keys "file", "findings" (objects with "code", "severity", "message", "path", "line" and
/// "column"), "errors", "warnings" and "hints".
void printJson(const QString &file, const qxFindings &findings);
/// A test case for each code of the linter. An error fails its test case; other findings are its
/// output.
void printJUnit(const QString &file, const qxFindings &findings);

/// How many findings have that severity.
int count(const qxFindings &findings, qxSeverity severity);

} // namespace qxLintReport
