#include "qxViewerFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString qxViewerFiles::folder()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString path = QDir::cleanPath(programs.filePath(QStringLiteral(QX_VIEWER)));
    return QFileInfo::exists(path + QStringLiteral("/viewer.js")) ? path : QString();
}
