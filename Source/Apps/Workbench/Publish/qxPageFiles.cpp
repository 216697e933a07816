#include "Publish/qxPageFiles.h"

#include <QCryptographicHash>
#include <QMimeDatabase>

QString qxPageFiles::add(const QString &name, const QByteArray &bytes)
{
    if (m_place == Within) {
        const QString type =
            QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
        return QStringLiteral("data:%1;base64,%2").arg(type, QString::fromLatin1(bytes.toBase64()));
    }
    m_files += File(name, bytes);
    const QByteArray sum = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    return name + QLatin1Char('?') + QString::fromLatin1(sum.toHex().left(12));
}
