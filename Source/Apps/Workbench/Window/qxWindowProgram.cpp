#include "qxWindowProgram.h"

#include "qxCommand.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "qxWorkbenchWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QScreen>
#include <QStatusBar>

#include <clocale>

namespace {

/// What speaks against a window; empty for nothing.
QString obstacle(const QString &path)
{
    if (!path.isEmpty() && !QFileInfo::exists(path))
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
    if (argc < 2)
        return true;
    const QString path = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    return path.endsWith(QLatin1String(".gltf"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".glb"), Qt::CaseInsensitive);
}

int qxWindowProgram::run(int argc, char *argv[])
{
    const QString path = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    const QString reason = obstacle(path);
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
    if (path.isEmpty())
        window.statusBar()->showMessage(
            qxWorkbenchWindow::tr("Open a scene with \"File > Open\", or drop one here."));
    else
        window.openFile(path);
    return QApplication::exec();
}
