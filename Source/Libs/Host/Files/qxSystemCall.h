#pragma once

#include <QByteArray>

#include <cerrno>

namespace qxSystemCall {

/// Repeats the call while a signal interrupts it; returns the result of the last one.
template <class Call>
auto repeat(const Call &call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Writes all bytes, in several calls if need be. False with the reason in errno.
bool write(int descriptor, const QByteArray &bytes);
/// Writes all that is in the file `from`, whose place for reading stays as it is. False with the
/// reason in errno.
bool copy(int from, int descriptor);
/// Waits until what was written is on the disk. False with the reason in errno.
bool sync(int descriptor);
/// The same for the names in a folder. A file system without such a call and a folder that cannot
/// be opened are no failure.
bool syncFolder(const QByteArray &folder);

} // namespace qxSystemCall
