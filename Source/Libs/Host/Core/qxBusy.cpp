#include "Core/qxBusy.h"

#include "qxController.h"

#include <QCursor>
#include <QGuiApplication>

namespace {

int &depth()
{
    static int depth = 0;
    return depth;
}

void showCursor(bool busy)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

} // namespace

bool qxBusy::isBusy()
{
    return depth() > 0;
}

void qxController::setBusy(bool busy, bool cursor)
{
    if (!busy && depth() == 0)
        return;
    depth() += busy ? 1 : -1;
    if (cursor)
        showCursor(busy);
}
