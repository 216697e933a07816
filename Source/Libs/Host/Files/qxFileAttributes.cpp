#include "Files/qxFileAttributes.h"

#include <QList>

#include <sys/xattr.h>

#include <cerrno>
#include <unistd.h>

namespace {

const char *const accessList = "system.posix_acl_access";

QList<QByteArray> namesOf(const QByteArray &path)
{
    const ssize_t size = listxattr(path.constData(), nullptr, 0);
    QByteArray names(int(qMax<ssize_t>(size, 0)), '\0');
    const ssize_t filled = listxattr(path.constData(), names.data(), std::size_t(names.size()));
    names.truncate(int(qMax<ssize_t>(filled, 0)));
    QList<QByteArray> list = names.split('\0');
    list.removeAll(QByteArray());
    return list;
}

bool copyAttribute(const QByteArray &from, int to, const char *name)
{
    const ssize_t size = getxattr(from.constData(), name, nullptr, 0);
    QByteArray value(int(qMax<ssize_t>(size, 0)), '\0');
    const ssize_t filled =
        getxattr(from.constData(), name, value.data(), std::size_t(value.size()));
    return filled >= 0 && fsetxattr(to, name, value.constData(), std::size_t(filled), 0) == 0;
}

/// Those of the system itself, such as labels, are not the user's to keep.
bool isOfTheUser(const QByteArray &name)
{
    return name.startsWith("user.") || name == accessList;
}

bool copyAttributes(const QByteArray &from, bool isOfGroup, int to)
{
    // The folder may have given the new file a list of its own.
    fremovexattr(to, accessList);
    bool areKept = true;
    for (const QByteArray &name : namesOf(from)) {
        const bool isKept =
            (isOfGroup || name != accessList) && copyAttribute(from, to, name.constData());
        areKept &= isKept || !isOfTheUser(name);
    }
    return areKept;
}

/// Takes from the group what the others may not do either.
mode_t withoutGroup(mode_t mode)
{
    return mode & ~((~mode & S_IRWXO) << 3) & ~mode_t(S_ISGID);
}

} // namespace

bool qxFileAttributes::copy(const QByteArray &from, const struct stat &status, int to)
{
    const bool isOwned = fchown(to, status.st_uid, status.st_gid) == 0;
    const bool isOfGroup = isOwned || fchown(to, uid_t(-1), status.st_gid) == 0;
    mode_t mode = status.st_mode & 07777;
    if (!isOfGroup)
        mode = withoutGroup(mode);
    if (!isOwned)
        mode &= ~mode_t(S_ISUID);
    // An access list is told in the mode, too, and goes after it.
    const bool hasMode = fchmod(to, mode) == 0;
    return copyAttributes(from, isOfGroup, to) && hasMode && isOwned;
}
