#include "Files/qxFileStamp.h"

#include <QFile>
#include <QFileInfo>

#include <ctime>

namespace {

/// Seconds. Clocks of file systems may be that coarse, and two changes then have the same time.
const int coarsest = 2;

const int readAtOnce = 1 << 20;

qxFileSum sumOf(const QByteArray &bytes)
{
    qxFileSum sum;
    sum.add(bytes);
    return sum;
}

/// Of the beginning of a file, at most so many bytes.
qxFileSum sumOf(QFile &file, qint64 size)
{
    qxFileSum sum;
    QByteArray block;
    while (!(block = file.read(qMin<qint64>(size - sum.size(), readAtOnce))).isEmpty())
        sum.add(block);
    return sum;
}

/// The time of the last change of any kind, which nobody can set.
bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size
        && one.st_ctim.tv_sec == other.st_ctim.tv_sec
        && one.st_ctim.tv_nsec == other.st_ctim.tv_nsec;
}

} // namespace

qxFileStamp::qxFileStamp(const QString &path, const QByteArray &bytes)
    : qxFileStamp(path, sumOf(bytes))
{
}

qxFileStamp::qxFileStamp(const QString &path, const qxFileSum &sum)
    : m_path(QFile::encodeName(QFileInfo(path).absoluteFilePath())), m_size(sum.size()),
      m_hash(sum.hash())
{
    const bool isThere = stat(m_path.constData(), &m_status) == 0;
    m_isStatusSure = isThere && m_status.st_ctim.tv_sec + coarsest < std::time(nullptr);
    m_isWhole = isThere && m_status.st_size == m_size;
}

bool qxFileStamp::isUpToDate() const
{
    struct stat now;
    if (m_path.isEmpty())
        return true;
    if (stat(m_path.constData(), &now) != 0)
        return false;
    if (m_isStatusSure && isSame(now, m_status))
        return true;
    QFile file(QFile::decodeName(m_path));
    if (!S_ISREG(now.st_mode) || (m_isWhole && now.st_size != m_size)
        || !file.open(QIODevice::ReadOnly))
        return false;
    const qxFileSum sum = sumOf(file, m_size);
    return sum.size() == m_size && sum.hash() == m_hash;
}
