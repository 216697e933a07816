#include "Internal/Capture/qxCaptureProgress.h"

#include "qxController.h"
#include "qxDockWindowManager.h"
#include "qxNameLookUp.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>

namespace {

QWidget *parentWindow()
{
    const QDockWidget *const dock = qxController::getDockWindowManager()->getDockWidget(
        QCoreApplication::translate("qxVariants", "Variant Sets"));
    return dock && dock->isVisible() ? dock->widget() : qxController::getMainWindow();
}

QLabel *makeLabel()
{
    QLabel *const label =
        new QLabel(QCoreApplication::translate("qxVariants", "Capturing Variant Set ..."));
    label->setFixedWidth(256);
    label->setMinimumHeight(32);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

} // namespace

qxCaptureProgress::qxCaptureProgress()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        m_dialog = new QProgressDialog;
    init(m_dialog);
    qxController::setBusy(true, true);
}

qxCaptureProgress::~qxCaptureProgress()
{
    qxController::setBusy(false, true);
    delete m_dialog;
}

void qxCaptureProgress::init(QProgressDialog *dialog)
{
    if (!dialog)
        return;
    dialog->setParent(parentWindow(), Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    dialog->setRange(0, 0);
    dialog->setWindowTitle(
        QCoreApplication::translate("qxVariants", "Variant Set: Capture Variant..."));
    dialog->setCancelButton(nullptr);
    dialog->setLabel(makeLabel());
    dialog->setModal(true);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    processEvents();
}

void qxCaptureProgress::processEvents()
{
    const qxUnchangedNames::Pause others;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
