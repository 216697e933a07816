#include "Commands/qxCommandTable.h"
#include "Window/qxWindowProgram.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <clocale>

int main(int argc, char *argv[])
{
    // Sub-commands need no display; previews and key texts need an application all the same.
    QCoreApplication::setApplicationVersion(QStringLiteral(QX_VERSION));
    const bool hasWindow = qxWindowProgram::isAskedFor(argc, argv);
    if (!hasWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (hasWindow)
        return qxWindowProgram::run(argc, argv);

    // Qt says at every start that a machine without a user session has no folder for one.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QGuiApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QString());
    // Numbers in texts and scripts have a decimal point wherever the program runs.
    setlocale(LC_NUMERIC, "C");
    return qxCommands::dispatch(application.arguments());
}
