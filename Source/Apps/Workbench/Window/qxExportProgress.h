#pragma once

#include "Pictures/qxPictureProgress.h"

#include <QCoreApplication>
#include <QProgressDialog>

/// Shows the progress of pictures for a file, in the place of a dialog for each.
class qxExportProgress {
    Q_DECLARE_TR_FUNCTIONS(qxExportProgress)

public:
    qxExportProgress(int count, QWidget *window);
    qxExportProgress(const qxExportProgress &) = delete;
    ~qxExportProgress() { qxPictureProgress::setDisplay(m_single); }

    /// The picture of this set, or this file, comes next. False when the user has enough.
    bool begin(const QString &what);

private:
    bool show(double share);

    QProgressDialog m_dialog;
    qxPictureProgress::Display m_single;
    int m_begun = 0;
};
