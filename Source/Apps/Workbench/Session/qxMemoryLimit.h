#pragma once

#include <QCommandLineOption>

class QCommandLineParser;

/// The option of window and scene commands that limits the memory for the decoded content of a
/// scene file.
namespace qxMemoryLimit {

QCommandLineOption option();
/// If the option is given, sets the limit for files opened from now on. False if its value is no
/// size.
bool take(const QCommandLineParser &parser);
/// The error message for such a value.
QString flaw(const QCommandLineParser &parser);

} // namespace qxMemoryLimit
