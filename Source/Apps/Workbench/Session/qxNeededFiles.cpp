#include "Session/qxNeededFiles.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QUrl>

QStringList qxNeededFiles::of(const QJsonObject &sceneJson)
{
    QStringList names;
    for (const char *const list : {"buffers", "images"}) {
        for (const QJsonValue &each : sceneJson[QLatin1String(list)].toArray()) {
            const QString uri = each[QLatin1String("uri")].toString();
            const QString name = QDir::cleanPath(QUrl::fromPercentEncoding(uri.toUtf8()));
            const bool isBeside = !uri.isEmpty() && !uri.contains(QLatin1Char(':'))
                && QDir::isRelativePath(name) && !name.startsWith(QLatin1String(".."));
            if (isBeside)
                names += name;
        }
    }
    return names;
}
