#include "qxDemo.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString qxDemo::scene()
{
    const QDir demos(QDir(QCoreApplication::applicationDirPath()).filePath(QX_DEMOS));
    const QString path = QDir::cleanPath(demos.filePath(QStringLiteral("roadster.gltf")));
    return QFileInfo::exists(path) ? path : QString();
}
