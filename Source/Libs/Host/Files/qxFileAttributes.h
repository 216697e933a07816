#pragma once

#include <QByteArray>

#include <sys/stat.h>

/// Attributes of files.
namespace qxFileAttributes {

/// Gives the open file the owner, group, mode, access list and extended attributes of the file
/// `from`, whose status is given, as far as this user may. Nobody but its new owner gets more
/// rights than for that file. False when something could not be kept.
bool copy(const QByteArray &from, const struct stat &status, int to);

} // namespace qxFileAttributes
