#include "Files/qxOutputFile.h"

#include "Files/qxFileText.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

qxOutputFile::qxOutputFile(const QString &path) : m_path(path)
{
    if (!isStream(path))
        m_file = std::make_unique<QSaveFile>(path);
}

qxOutputFile::~qxOutputFile() = default;

bool qxOutputFile::prepare(const QByteArray &bytes)
{
    const QString flaw = flawOf(m_path);
    if (!flaw.isEmpty())
        return fail(flaw);
    if (!m_file) {
        m_bytes = bytes;
        return true;
    }
    const bool isTaken = m_file->open(QIODevice::WriteOnly) && m_file->write(bytes) == bytes.size()
        && m_file->flush();
    return isTaken || fail(m_file->errorString());
}

bool qxOutputFile::commit()
{
    if (!m_file)
        return writeStraight();
    return m_file->commit() || fail(m_file->errorString());
}

bool qxOutputFile::fail(const QString &reason)
{
    m_error = reason;
    return false;
}

/// Appended, because standard output has such names, too, and may be a file that holds something.
bool qxOutputFile::writeStraight()
{
    const auto failed = [this] {
        return fail(QString::fromStdString(std::generic_category().message(errno)));
    };
    std::FILE *const stream = std::fopen(QFile::encodeName(m_path).constData(), "ab");
    if (!stream)
        return failed();
    const std::size_t size = std::size_t(m_bytes.size());
    const bool isWritten =
        std::fwrite(m_bytes.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
    const bool isDone = isWritten || failed();
    return std::fclose(stream) == 0 && isDone;
}

bool qxOutputFile::isStream(const QString &path)
{
    // Names of open files; what is behind them may be a regular one.
    if (path == QLatin1String("/dev/stdout") || path == QLatin1String("/dev/stderr")
        || path.startsWith(QLatin1String("/dev/fd/")))
        return true;
    std::error_code unknown;
    const auto status = std::filesystem::status(path.toStdString(), unknown);
    return std::filesystem::is_other(status);
}

QString qxOutputFile::flawOf(const QString &path)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (isStream(path))
        return file.isWritable() ? QString() : qxFileText::tr("nothing may be written to it");
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
