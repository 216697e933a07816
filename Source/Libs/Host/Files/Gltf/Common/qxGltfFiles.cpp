#include "Files/Gltf/Common/qxGltfFiles.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxMemoryBudget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <exception>
#include <unistd.h>

namespace {

/// Both are real paths.
bool isBelow(const QString &path, const QString &folder)
{
    return path.startsWith(folder.endsWith('/') ? folder : folder + '/');
}

QString realPath(const QString &path)
{
    return QFileInfo(path).canonicalFilePath();
}

[[noreturn]] void cannotOpen(const QString &reason)
{
    throw qxGltfError(qxFileText::tr("the file cannot be opened: %1").arg(reason));
}

/// Opens a regular file, and nothing else: a pipe would wait for somebody to write. What is there
/// may be another thing than a moment ago, so that it is the opened one that counts.
void open(QFile &file, const QString &path)
{
    if (!QFileInfo::exists(path))
        throw qxGltfError(qxFileText::tr("the file does not exist"));
    if (!QFileInfo(path).isFile())
        throw qxGltfError(qxFileText::tr("it is not a file"));
    const int handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
        cannotOpen(qt_error_string(errno));
    if (!file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        cannotOpen(file.errorString());
    }
    struct stat status;
    if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode))
        throw qxGltfError(qxFileText::tr("it is not a file"));
}

QByteArray readAll(QFile &file, qxMemoryBudget &budget)
{
    const qint64 size = file.size();
    if (size > std::numeric_limits<int>::max() / 2)
        throw qxGltfError(qxFileText::tr("the file is larger than one gigabyte"));
    budget.take(size, 1);
    // No more than that, although the file may grow meanwhile.
    const QByteArray bytes = file.read(size);
    if (bytes.size() < size)
        throw qxGltfError(qxFileText::tr("the file cannot be read: %1").arg(file.errorString()));
    return bytes;
}

/// Whether the opened file is what stands at the path.
bool standsAt(const QFile &file, const QString &path)
{
    struct stat opened;
    struct stat there;
    return ::fstat(file.handle(), &opened) == 0
        && ::lstat(QFile::encodeName(path).constData(), &there) == 0
        && opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

} // namespace

QString qxGltfAttempt(const QString &path, const std::function<void()> &work)
{
    try {
        work();
        return QString();
    } catch (const qxGltfError &error) {
        return path + ": " + error.reason();
    } catch (const std::exception &error) { // most likely out of memory
        return path + ": " + error.what();
    }
}

QString qxGltfFolderOf(const QString &path)
{
    const QString real = realPath(path);
    return QFileInfo(real.isEmpty() ? path : real).absolutePath();
}

QByteArray qxGltfReadFile(const QString &path, qxMemoryBudget &budget)
{
    QFile file;
    open(file, path);
    return readAll(file, budget);
}

QByteArray qxGltfReadBeside(const QString &folder, const QString &relative, qxMemoryBudget &budget)
{
    const QString path = QDir(folder).filePath(relative);
    QFile file;
    open(file, path);
    const QString real = realPath(path);
    if (!isBelow(real, realPath(folder)) || !standsAt(file, real))
        throw qxGltfError(qxFileText::tr("it leads out of the folder of the scene file"));
    return readAll(file, budget);
}

bool qxGltfIsInside(const QString &folder, const QString &relative)
{
    const QString top = realPath(folder);
    QString path = QDir(folder).filePath(relative);
    while (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
        path = QFileInfo(path).path();
    const QString real = realPath(path);
    return real == top || isBelow(real, top);
}
