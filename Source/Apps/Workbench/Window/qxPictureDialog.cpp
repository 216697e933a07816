#include "qxPictureDialog.h"

#include "Pictures/qxPictureProgress.h"

#include <QProgressDialog>

namespace {

const int delay = 500; ///< milliseconds that nobody needs to be told about
const int progressSteps = 100;

} // namespace

qxPictureDialog::qxPictureDialog(QWidget *window) : m_window(window)
{
    qxPictureProgress::setDisplay([this](double share) { return show(share); });
}

qxPictureDialog::~qxPictureDialog()
{
    qxPictureProgress::setDisplay({});
    delete m_dialog;
}

/// False when the user cancelled.
bool qxPictureDialog::show(double share)
{
    if (!m_dialog) {
        m_dialog = new QProgressDialog(tr("Rendering the preview ..."), tr("Cancel"), 0,
                                       progressSteps, m_window, Qt::Dialog | Qt::WindowTitleHint);
        m_dialog->setWindowModality(Qt::WindowModal);
        m_dialog->setMinimumDuration(delay);
        m_dialog->setAutoReset(false);
    }
    m_dialog->setValue(int(share * progressSteps)); // This lets events through once it is seen.
    if (!m_dialog)
        return false;
    const bool goesOn = !m_dialog->wasCanceled();
    if (!goesOn || share >= 1)
        delete m_dialog;
    return goesOn;
}
