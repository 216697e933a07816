#include "qxExportProgress.h"

#include <QLabel>

namespace {

const int pictureSteps = 100;

} // namespace

qxExportProgress::qxExportProgress(int count, QWidget *window)
    : m_dialog(QString(), tr("Cancel"), 0, count * pictureSteps, window,
               Qt::Dialog | Qt::WindowTitleHint),
      m_single(qxPictureProgress::display())
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    m_dialog.setLabel(label);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(0);
    m_dialog.setAutoReset(false);
    qxPictureProgress::setDisplay([this](double share) { return show(share); });
}

bool qxExportProgress::begin(const QString &what)
{
    ++m_begun;
    m_dialog.setLabelText(tr("Picture of \"%1\" ...").arg(what));
    return show(0);
}

bool qxExportProgress::show(double share)
{
    m_dialog.setValue((m_begun - 1) * pictureSteps
                      + int(share * pictureSteps)); // This lets events through.
    return !m_dialog.wasCanceled();
}
