#pragma once

#include <QPointer>
#include <QProgressDialog>

/// Shows for one scope that a capture runs: the host is busy and, where there are windows, a dialog
/// says so.
class qxCaptureProgress {
public:
    qxCaptureProgress();
    ~qxCaptureProgress();
    qxCaptureProgress(const qxCaptureProgress &) = delete;
    qxCaptureProgress &operator=(const qxCaptureProgress &) = delete;

    /// Makes the dialog one that cannot be cancelled and shows it; a null one is left alone.
    static void init(QProgressDialog *dialog);
    /// Lets the dialog repaint. Whatever the user does waits.
    static void processEvents();

private:
    QPointer<QProgressDialog> m_dialog; ///< its parent may take it along
};
