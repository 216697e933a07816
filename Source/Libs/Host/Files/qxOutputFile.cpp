#include "Files/qxOutputFile.h"

#include "Files/qxFileAttributes.h"
#include "Files/qxFileText.h"
#include "Files/qxSystemCall.h"
#include "qxText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace {

const int longestChain = 40; ///< of links, as the system has it

QString reasonOf(int number)
{
    return qxText::fromUtf8(std::generic_category().message(number));
}

/// Why the system does not lead there; nothing there is no reason.
QString flawOfWay(const QString &path)
{
    struct stat status;
    const bool isFound = stat(QFile::encodeName(path).constData(), &status) == 0;
    return isFound || errno == ENOENT || errno == ENOTDIR ? QString() : reasonOf(errno);
}

} // namespace

qxOutputFile::qxOutputFile(const QString &path, Readers readers)
    : m_path(path), m_readers(readers), m_isStream(isStream(path))
{
}

bool qxOutputFile::prepare(const QByteArray &bytes)
{
    return prepare([bytes](const Sink &sink) {
        sink(bytes);
        return QString();
    });
}

bool qxOutputFile::prepare(const Content &content)
{
    const QString flaw = flawOf(m_path);
    if (!flaw.isEmpty())
        return fail(flaw);
    m_content = content;
    if (m_isStream)
        return true;
    m_target = QFile::encodeName(targetOf(m_path));
    if (stat(m_target.constData(), &m_old) != 0)
        m_old.st_nlink = 0;
    // What one killed while writing in place has left is all that is whole, until this is done.
    if (m_old.st_nlink <= 1)
        qxSavingFile::removeStrays(m_target);
    return writeNew() || failUntouched();
}

/// What is written, is over; errno says why it failed, or m_error why there was no more.
template <class Write>
bool qxOutputFile::writeContent(const Write &write)
{
    bool isWritten = true;
    int reason = 0;
    m_error = std::exchange(m_content, nullptr)([&](const QByteArray &bytes) {
        isWritten = isWritten && write(bytes);
        reason = errno;
        return isWritten;
    });
    errno = reason;
    return isWritten && m_error.isEmpty();
}

/// Nobody else reads what an old file's mode may not let them read.
bool qxOutputFile::writeNew()
{
    const bool isForAll = m_old.st_nlink == 0 && m_readers == Everybody;
    const auto write = [this](const QByteArray &bytes) {
        m_sum.add(bytes);
        return qxSystemCall::write(m_new.descriptor(), bytes);
    };
    const bool isWritten = m_new.create(m_target, isForAll ? 0666 : 0600) && writeContent(write);
    if (isWritten && m_old.st_nlink == 1 && m_readers == Everybody
        && !qxFileAttributes::copy(m_target, m_old, m_new.descriptor()))
        m_warnings << qxFileText::tr(
            "not all of the file's owner, group, rights and attributes could be kept");
    return isWritten && qxSystemCall::sync(m_new.descriptor());
}

bool qxOutputFile::commit()
{
    if (m_isStream)
        return writeStraight();
    if (m_old.st_nlink > 1)
        return writeInPlace();
    if (!m_new.replaceTarget())
        return failUntouched();
    m_isReplaced = true;
    const QString folder = QFileInfo(QFile::decodeName(m_target)).absolutePath();
    return qxSystemCall::syncFolder(QFile::encodeName(folder))
        || fail(qxFileText::tr("it is written, but may not be on the disk: %1")
                    .arg(reasonOf(errno)));
}

bool qxOutputFile::fail(const QString &reason)
{
    m_error = reason;
    return false;
}

bool qxOutputFile::failUntouched()
{
    const QString reason = m_error.isEmpty() ? reasonOf(errno) : m_error;
    return fail(m_old.st_nlink > 0 ? qxFileText::tr("%1; the file is as it was").arg(reason)
                                   : reason);
}

/// Appended, because standard output has such names, too, and may be a file that holds something.
bool qxOutputFile::writeStraight()
{
    std::FILE *const stream = std::fopen(QFile::encodeName(m_path).constData(), "ab");
    if (!stream)
        return fail(reasonOf(errno));
    const auto write = [stream](const QByteArray &bytes) {
        const std::size_t size = std::size_t(bytes.size());
        return std::fwrite(bytes.constData(), 1, size, stream) == size;
    };
    const bool isWritten = writeContent(write) && std::fflush(stream) == 0;
    const bool isDone = isWritten || fail(m_error.isEmpty() ? reasonOf(errno) : m_error);
    return std::fclose(stream) == 0 && isDone;
}

/// The whole content lies beside the file until it is in there, and is taken from there.
bool qxOutputFile::writeInPlace()
{
    const int file = qxSystemCall::repeat(
        [this] { return open(m_target.constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC); });
    if (file < 0 || !reserve(file)) {
        const int reason = errno;
        close(file);
        errno = reason;
        return failUntouched();
    }
    const bool isAllowed = m_readers == Everybody || fchmod(file, 0600) == 0;
    const auto cut = [&] { return ftruncate(file, m_sum.size()); };
    const bool isWritten = isAllowed && qxSystemCall::copy(m_new.descriptor(), file)
        && qxSystemCall::repeat(cut) == 0 && qxSystemCall::sync(file);
    const int reason = errno;
    close(file);
    m_isReplaced = true;
    if (!isWritten) {
        m_new.keep();
        return fail(
            qxFileText::tr("%1; the file may be half written, its new content is whole in %2")
                .arg(reasonOf(reason), QFile::decodeName(m_new.name())));
    }
    qxSavingFile::removeStrays(m_target);
    m_warnings << qxFileText::tr("the file has several hard links and was written in place, where "
                                 "an interruption would have left it half written");
    return true;
}

/// Room for what is more than before, so that a full disk is found out before anything changes.
bool qxOutputFile::reserve(int descriptor)
{
    if (m_sum.size() <= m_old.st_size)
        return true;
    const auto call = [&] { return fallocate(descriptor, 0, 0, m_sum.size()); };
    if (qxSystemCall::repeat(call) == 0 || errno == EOPNOTSUPP)
        return true;
    const int reason = errno;
    const bool isCut = ftruncate(descriptor, m_old.st_size) == 0;
    errno = isCut ? reason : errno;
    return false;
}

bool qxOutputFile::isStream(const QString &path)
{
    // Names of open files; what is behind them may be a regular one.
    if (path == QLatin1String("/dev/stdout") || path == QLatin1String("/dev/stderr")
        || path.startsWith(QLatin1String("/dev/fd/")))
        return true;
    std::error_code unknown;
    const auto status = std::filesystem::status(qxText::toUtf8(path), unknown);
    return std::filesystem::is_other(status);
}

QString qxOutputFile::flawOf(const QString &path)
{
    const QFileInfo file(targetOf(path));
    const QFileInfo folder(file.absolutePath());
    if (isStream(path))
        return QFileInfo(path).isWritable() ? QString()
                                            : qxFileText::tr("nothing may be written to it");
    const QString flaw = flawOfWay(path);
    if (!flaw.isEmpty())
        return flaw;
    if (file.isDir())
        return qxFileText::tr("it is a folder");
    if (!folder.isDir())
        return qxFileText::tr("its folder does not exist");
    if (!folder.isWritable())
        return qxFileText::tr("nothing may be written to its folder");
    if (file.exists() && !file.isWritable())
        return qxFileText::tr("nothing may be written to it");
    return QString();
}

QString qxOutputFile::targetOf(const QString &path)
{
    // A link that the system refuses to follow is not followed here either.
    if (!flawOfWay(path).isEmpty())
        return path;
    std::filesystem::path target = QFile::encodeName(path).toStdString();
    std::error_code unknown;
    for (int count = 0; count < longestChain; ++count) {
        const std::filesystem::path next = std::filesystem::read_symlink(target, unknown);
        if (unknown)
            break;
        target = target.parent_path() / next;
    }
    return QFile::decodeName(QByteArray::fromStdString(target.string()));
}

QString qxOutputFile::realTargetOf(const QString &path)
{
    const QFileInfo target(targetOf(path));
    return QDir(target.absolutePath()).canonicalPath() + '/' + target.fileName();
}

bool qxOutputFile::isSame(const QString &path, const QString &other)
{
    std::error_code unknown; // also of several hard links
    return realTargetOf(path) == realTargetOf(other)
        || std::filesystem::equivalent(QFile::encodeName(path).toStdString(),
                                       QFile::encodeName(other).toStdString(), unknown);
}
