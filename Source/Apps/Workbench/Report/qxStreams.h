#pragma once

#include "Files/qxOutputFile.h"

#include <QByteArray>
#include <QString>

/// Reads and writes by name: files, pipes and devices, or "-" for standard input and output.
/// Failures are explained on standard error.
namespace qxStreams {

bool read(const QString &name, QByteArray &bytes);
///@{
/// A file is written completely or not at all; errors of standard output are reported when the
/// command ends.
bool write(const QString &name, const QByteArray &bytes);
bool write(const QString &name, const qxOutputFile::Content &content);
///@}
///@{
/// The same for a file, without a word on standard error: empty, or why it cannot be written.
QString writeFile(const QString &name, const QByteArray &bytes);
QString writeFile(const QString &name, const qxOutputFile::Content &content);
///@}

/// Whether the name is "-".
bool isStandard(const QString &name);

} // namespace qxStreams
