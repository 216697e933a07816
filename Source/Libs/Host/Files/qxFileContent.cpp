#include "Files/qxFileContent.h"

#include "Files/qxFileText.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// Reads a file of that size. Why it cannot be read, with its path, or empty.
QString readWhole(const QString &path, qint64 size, QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        bytes = file.read(size + 1);
    if (file.error() != QFileDevice::NoError)
        return path + ": " + qxFileText::tr("the file cannot be read: %1").arg(file.errorString());
    return bytes.size() == size
        ? QString()
        : path + ": " + qxFileText::tr("somebody has changed it since it was read");
}

} // namespace

void qxFileContent::append(const QByteArray &bytes)
{
    m_pieces.push_back({bytes, QString(), 0});
    m_size += bytes.size();
}

void qxFileContent::appendBase64(const QString &path)
{
    const qint64 size = QFileInfo(path).size();
    m_pieces.push_back({QByteArray(), path, size});
    m_size += (size + 2) / 3 * 4;
}

void qxFileContent::append(const qxFileContent &content)
{
    m_pieces.insert(m_pieces.end(), content.m_pieces.begin(), content.m_pieces.end());
    m_size += content.m_size;
}

QString qxFileContent::giveTo(const qxOutputFile::Sink &sink) const
{
    for (const Piece &piece : m_pieces) {
        QByteArray bytes = piece.bytes;
        const QString flaw =
            piece.path.isEmpty() ? QString() : readWhole(piece.path, piece.size, bytes);
        if (!flaw.isEmpty())
            return flaw;
        if (!sink(piece.path.isEmpty() ? bytes : bytes.toBase64()))
            break;
    }
    return QString();
}
