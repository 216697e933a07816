#include "qxWindowProgram.h"

#include "Commands/qxCommand.h"
#include "Session/qxMemoryLimit.h"
#include "qxFileClaim.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "qxWorkbenchWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

#include <clocale>
#include <cstdio>

namespace {

/// The files among the arguments; the parser has the options of a window then.
QStringList read(QCommandLineParser &parser, int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    parser.addOption(qxMemoryLimit::option());
    parser.parse(arguments);
    return parser.positionalArguments();
}

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

/// Brings a window that has the file to the front; false for none, and for one that does not
/// answer.
bool isShownElsewhere(const QString &path)
{
    const qxFileClaim claim(path);
    if (claim.isHeld() || !claim.showHolder())
        return false;
    std::printf("%s is open; its window is in front now\n", qPrintable(path));
    return true;
}

} // namespace

bool qxWindowProgram::isAskedFor(int argc, char *argv[])
{
    QCommandLineParser parser;
    const QStringList files = read(parser, argc, argv);
    const auto isScene = [&files](const char *suffix) {
        return files[0].endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
    };
    // Unknown options are the commands' to complain about.
    return parser.unknownOptionNames().isEmpty()
        && (files.isEmpty() || (files.size() == 1 && (isScene(".gltf") || isScene(".glb"))));
}

int qxWindowProgram::run(int argc, char *argv[])
{
    QCommandLineParser parser;
    const QString path = read(parser, argc, argv).value(0);
    const QString flaw = parser.errorText().isEmpty() && !qxMemoryLimit::take(parser)
        ? qxMemoryLimit::flaw(parser)
        : parser.errorText();
    if (!flaw.isEmpty()) {
        qxCommands::fail(flaw);
        return WrongUse;
    }
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
    // Desktops take the icon from there.
    QApplication::setDesktopFileName(QStringLiteral(QX_DESKTOP_ID));
    if (!path.isEmpty() && isShownElsewhere(path))
        return Success;
    qxOSGWidget::setRaytracing(true);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(-1);
    qxWorkbenchWindow window;
    window.show();
    if (!path.isEmpty())
        window.openAnother(path);
    else
        QTimer::singleShot(0, &window, &qxWorkbenchWindow::offerRecovery);
    return QApplication::exec();
}
