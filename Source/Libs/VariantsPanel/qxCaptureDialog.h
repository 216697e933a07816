#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;

/// What a capture takes down.
struct qxCaptureChoice {
    QString name; ///< of the new set
    QString group; ///< empty for none
    bool nodes = true;
    bool materials = true;
    bool lights = true;
    bool environment = true;
    bool viewpoint = true;
    bool transforms = true;
};

/// Asks what a capture takes down. At least one kind is chosen when it was accepted.
class qxCaptureDialog : public QDialog {
    Q_OBJECT

public:
    /// With `isUpdate` the set is there already: name and group are not asked for.
    qxCaptureDialog(const qxCaptureChoice &proposal, bool isUpdate, QWidget *parent = nullptr);

    qxCaptureChoice choice() const;

private:
    void buildNames(bool isUpdate);
    void allowAccept();

    qxCaptureChoice m_proposal;
    QLineEdit *m_name;
    QComboBox *m_group;
    QList<QPair<QCheckBox *, bool qxCaptureChoice::*>> m_flags;
    QPushButton *m_accept;
};
