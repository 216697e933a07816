#include "qxWindowProgram.h"

#include "qxCommand.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "qxWorkbenchWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QScreen>

#include <clocale>

namespace {

/// What speaks against a window; empty for nothing.
QString obstacle(const QString &path)
{
    if (!QFileInfo::exists(path))
        return QStringLiteral("%1: the file does not exist").arg(path);
#ifdef Q_OS_LINUX // Qt itself would abort there.
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return QString();
    }
    return QStringLiteral("no display to open a window on; commands need none, see --help");
#else
    return QString();
#endif
}

} // namespace

bool qxWindowProgram::isAskedFor(int argc, char *argv[])
{
    const QString path = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    return path.endsWith(QLatin1String(".gltf"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".glb"), Qt::CaseInsensitive);
}

int qxWindowProgram::run(int argc, char *argv[])
{
    const QString reason = obstacle(QString::fromLocal8Bit(argv[1]));
    if (!reason.isEmpty())
        return qxCommands::fail(reason);
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("workbench"));
    QApplication::setApplicationDisplayName(QStringLiteral("Workbench"));
    QApplication::setOrganizationName(QStringLiteral("qxVariants"));
    qxOSGWidget::setRaytracing(true);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(-1);
    qxWorkbenchWindow window;
    const QRect room = window.screen()->availableGeometry();
    if (!room.contains(window.geometry()))
        window.setGeometry(QRect(room.topLeft(), window.size().boundedTo(room.size())));
    window.show();
    window.openFile(application.arguments().value(1));
    return QApplication::exec();
}
