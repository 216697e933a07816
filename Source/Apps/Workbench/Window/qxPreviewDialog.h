#pragma once

#include "Pictures/qxPictureProgress.h"

#include <QCoreApplication>
#include <QProgressDialog>

/// Shows the progress of the previews of several sets, in the place of a dialog for each.
class qxPreviewDialog {
    Q_DECLARE_TR_FUNCTIONS(qxPreviewDialog)

public:
    qxPreviewDialog(int count, QWidget *window);
    qxPreviewDialog(const qxPreviewDialog &) = delete;
    ~qxPreviewDialog() { qxPictureProgress::setDisplay(m_single); }

    /// The preview of this set comes next. False when the user has enough.
    bool begin(const QString &set);

private:
    bool show(double share);

    QProgressDialog m_dialog;
    qxPictureProgress::Display m_single;
    int m_begun = 0;
};
