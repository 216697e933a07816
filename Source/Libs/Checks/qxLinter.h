#pragma once

#include "qxFinding.h"
#include "qxShare.h"

#include <QByteArray>

#include <functional>
#include <vector>

/// Checks a variants document against the scene of the host and finds errors, likely mistakes, and
/// entries that are not needed.
///
/// The document is taken as it is written down: neither the registry nor the scene is used or
/// changed otherwise than by looking things up. The time grows with document and scene together.
namespace qxLinter {

/// Answers what is wrong with a script, or an empty text.
typedef std::function<QString(const QString &script)> Compile;

/// The findings in the order of the document, up to a thousand of each code. `document` is UTF-8;
/// when it is not well-formed, what is wrong with it is the only finding.
qxFindings lint(const QByteArray &document, const Compile &compile);

///@{
/// The same look as several works: what each of them finds, and the findings of all of them, in the
/// order of the shares, put together. Shares divide the sets and variants by their entries. Each
/// reads the document; the first also tells what is wrong with its text.
qxFindings lint(const QByteArray &document, const Compile &compile, const qxShare &share);
qxFindings merge(const std::vector<qxFindings> &shares);
///@}

} // namespace qxLinter
