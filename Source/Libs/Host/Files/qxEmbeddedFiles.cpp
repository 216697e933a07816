#include "Files/qxEmbeddedFiles.h"

#include <QByteArrayMatcher>
#include <QRandomGenerator>
#include <QtEndian>

namespace {

/// Bytes of which three by three make four characters of Base64: random ones, then the number.
const int randomBytes = 18;
const int numberBytes = 6;
const int markSize = (randomBytes + numberBytes) / 3 * 4;

} // namespace

qxEmbeddedFiles::qxEmbeddedFiles()
{
    for (int i = 0; i < randomBytes; ++i)
        m_beginning += char(QRandomGenerator::system()->generate());
}

QByteArray qxEmbeddedFiles::add(const QString &path)
{
    QByteArray number(numberBytes, '\0');
    qToBigEndian(quint32(m_paths.size()), number.data());
    m_paths += path;
    return m_beginning + number;
}

qxFileContent qxEmbeddedFiles::in(const QByteArray &text) const
{
    qxFileContent content;
    if (isEmpty())
        return qxFileContent(text);
    const QByteArrayMatcher matcher(m_beginning.toBase64());
    int at = 0;
    for (int mark = matcher.indexIn(text); mark >= 0; mark = matcher.indexIn(text, at)) {
        content.append(text.mid(at, mark - at));
        at = mark + markSize;
        const QByteArray bytes = QByteArray::fromBase64(text.mid(mark, markSize));
        content.appendBase64(
            m_paths[int(qFromBigEndian<quint32>(bytes.constData() + randomBytes))]);
    }
    content.append(text.mid(at));
    return content;
}
