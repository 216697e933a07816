#pragma once

#include <QCoreApplication>
#include <QPointer>

class QProgressDialog;
class QWidget;

/// Shows the progress of pictures that block the program (previews), in front of a window. Fast
/// ones show nothing; others can be cancelled.
class qxPictureDialog {
    Q_DECLARE_TR_FUNCTIONS(qxPictureDialog)

public:
    explicit qxPictureDialog(QWidget *window);
    qxPictureDialog(const qxPictureDialog &) = delete;
    ~qxPictureDialog();

private:
    bool show(double share);

    QWidget *m_window;
    QPointer<QProgressDialog> m_dialog; ///< while a picture is rendered
};
