#pragma once

#include <QByteArray>

#include <sys/stat.h>

/// What a file has besides its content.
namespace qxFileAttributes {

/// Gives the open file the owner, group, mode, access list and extended attributes of the file
/// `from`, whose status is given, as far as this user may. Nobody but its new owner can do more
/// with the file than with that one. False when something could not be kept.
bool copy(const QByteArray &from, const struct stat &status, int to);

} // namespace qxFileAttributes
