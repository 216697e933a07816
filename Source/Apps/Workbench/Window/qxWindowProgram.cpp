#include "qxWindowProgram.h"

#include "qxOSGWidget.h"
#include "qxWorkbenchWindow.h"

#include <QApplication>

#include <clocale>

bool qxWindowProgram::isAskedFor(int argc, char *argv[])
{
    const QString path = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    return path.endsWith(QLatin1String(".gltf"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".glb"), Qt::CaseInsensitive);
}

int qxWindowProgram::run(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("workbench"));
    QApplication::setOrganizationName(QStringLiteral("qxVariants"));
    qxOSGWidget::setRaytracing(true);
    qxWorkbenchWindow window;
    window.show();
    window.openFile(application.arguments().value(1));
    return QApplication::exec();
}
