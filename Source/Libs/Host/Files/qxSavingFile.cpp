#include "Files/qxSavingFile.h"

#include "Files/qxSystemCall.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cstdio>
#include <unistd.h>

namespace {

/// How many programs may save the same file at the same moment.
const int maximum = 16;
const int longestName = 255;

QByteArray nameFor(const QByteArray &target, int number)
{
    const int slash = target.lastIndexOf('/');
    const QByteArray end = '.' + QByteArray::number(number) + ".saving";
    return target.left(slash + 1) + '.' + target.mid(slash + 1, longestName - 1 - end.size()) + end;
}

/// Whether the open file still stands under that name.
bool isNamed(int descriptor, const QByteArray &name)
{
    struct stat opened;
    struct stat named;
    return fstat(descriptor, &opened) == 0 && lstat(name.constData(), &named) == 0
        && S_ISREG(opened.st_mode) && opened.st_dev == named.st_dev
        && opened.st_ino == named.st_ino;
}

/// Removes the file when nobody holds its lock. A file system without locks tells nothing.
void removeStray(const QByteArray &name)
{
    const int descriptor = open(name.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return;
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isNamed(descriptor, name))
        unlink(name.constData());
    close(descriptor);
}

} // namespace

qxSavingFile::~qxSavingFile()
{
    if (m_descriptor < 0)
        return;
    if (!m_isKept)
        unlink(m_name.constData());
    close(m_descriptor);
}

bool qxSavingFile::create(const QByteArray &target, mode_t mode)
{
    m_target = target;
    for (int number = 0; number < maximum; ++number) {
        m_name = nameFor(target, number);
        m_descriptor = qxSystemCall::repeat(
            [&] { return open(m_name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode); });
        if (m_descriptor >= 0 && lock())
            return true;
        if (m_descriptor < 0 && errno != EEXIST)
            return false;
        if (m_descriptor >= 0)
            close(m_descriptor);
        m_descriptor = -1;
    }
    errno = EBUSY;
    return false;
}

/// False when another save has taken the file for a stray before it was locked.
bool qxSavingFile::lock()
{
    qxSystemCall::repeat([this] { return flock(m_descriptor, LOCK_EX); });
    return isNamed(m_descriptor, m_name);
}

bool qxSavingFile::replaceTarget()
{
    const auto call = [this] { return std::rename(m_name.constData(), m_target.constData()); };
    m_isKept = qxSystemCall::repeat(call) == 0;
    return m_isKept;
}

void qxSavingFile::removeStrays(const QByteArray &target)
{
    for (int number = 0; number < maximum; ++number)
        removeStray(nameFor(target, number));
}
