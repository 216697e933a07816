#include "Core/qxMainWindow.h"

#include "qxController.h"
#include "qxDockWindowManager.h"

#include <QDockWidget>
#include <QPointer>

namespace {

QPointer<QWidget> &mainWindow()
{
    static QPointer<QWidget> window;
    return window;
}

} // namespace

void qxMainWindow::set(QWidget *window)
{
    mainWindow() = window;
}

QWidget *qxController::getMainWindow()
{
    return mainWindow();
}

qxDockWindowManager *qxController::getDockWindowManager()
{
    static qxDockWindowManager manager;
    return &manager;
}

QDockWidget *qxDockWindowManager::getDockWidget(const QString &title) const
{
    if (!mainWindow())
        return nullptr;
    for (QDockWidget *dock : mainWindow()->findChildren<QDockWidget *>()) {
        if (dock->windowTitle() == title)
            return dock;
    }
    return nullptr;
}
