#pragma once

#include <QByteArray>
#include <QString>

/// What commands read and write by name: files, pipes and devices, or "-" for standard input and
/// output. Both say on standard error why they could not.
namespace qxStreams {

bool read(const QString &name, QByteArray &bytes);
/// A file is written as a whole or not at all; of standard output the command's end tells.
bool write(const QString &name, const QByteArray &bytes);

/// Whether the name is "-".
bool isStandard(const QString &name);

} // namespace qxStreams
