#include "Files/qxSystemCall.h"

#include <fcntl.h>

#include <unistd.h>

namespace {

const int copiedAtOnce = 1 << 16; ///< bytes

} // namespace

bool qxSystemCall::write(int descriptor, const QByteArray &bytes)
{
    const char *next = bytes.constData();
    for (std::size_t left = std::size_t(bytes.size()); left > 0;) {
        const ssize_t count = repeat([&] { return ::write(descriptor, next, left); });
        if (count <= 0) {
            errno = count == 0 ? EIO : errno;
            return false;
        }
        next += count;
        left -= std::size_t(count);
    }
    return true;
}

bool qxSystemCall::copy(int from, int descriptor)
{
    char block[copiedAtOnce];
    for (off_t at = 0;;) {
        const ssize_t count = repeat([&] { return pread(from, block, sizeof block, at); });
        if (count <= 0)
            return count == 0;
        if (!write(descriptor, QByteArray::fromRawData(block, int(count))))
            return false;
        at += count;
    }
}

bool qxSystemCall::sync(int descriptor)
{
    return repeat([&] { return fsync(descriptor); }) == 0;
}

bool qxSystemCall::syncFolder(const QByteArray &folder)
{
    const int descriptor =
        repeat([&] { return open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (descriptor < 0)
        return errno == EACCES;
    const bool isDone = sync(descriptor) || errno == EINVAL || errno == ENOTSUP;
    const int reason = errno;
    close(descriptor);
    errno = reason;
    return isDone;
}
