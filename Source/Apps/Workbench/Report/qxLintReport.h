#pragma once

#include "qxFinding.h"

class QJsonArray;

/// Findings as text in several formats, all UTF-8. `file` is their scene.
namespace qxLintReport {

/// A line for each finding, and one that counts them.
QByteArray text(const qxFindings &findings);
/// Keys "file", "findings" (objects with "code", "severity", "message", "path", "line" and
/// "column"), "errors", "warnings" and "hints".
QByteArray json(const QString &file, const qxFindings &findings);
/// A test case for each code of the linter. An error fails its test case; other findings are its
/// output.
QByteArray jUnit(const QString &file, const qxFindings &findings);

///@{
/// Those objects, and the findings that they tell of, without place and detail.
QJsonArray toJson(const qxFindings &findings);
qxFindings fromJson(const QJsonArray &array);
///@}

/// How many findings have that severity.
int count(const qxFindings &findings, qxSeverity severity);

} // namespace qxLintReport
