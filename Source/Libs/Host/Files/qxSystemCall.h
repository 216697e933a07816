#pragma once

#include <QByteArray>

#include <cerrno>

namespace qxSystemCall {

/// Calls until no signal comes between; the result of the last call.
template <class Call>
auto repeat(const Call &call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Writes all of the bytes, however few the system takes at once. False with the reason in errno.
bool write(int descriptor, const QByteArray &bytes);
/// Waits until what was written is on the disk. False with the reason in errno.
bool sync(int descriptor);
/// The same for which names stand in a folder. A file system that has nothing of the kind, and a
/// folder that may not be opened, are no failure.
bool syncFolder(const QByteArray &folder);

} // namespace qxSystemCall
