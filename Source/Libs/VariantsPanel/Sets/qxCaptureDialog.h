#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// The user's choices for a capture.
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

/// Asks what to capture. If accepted, at least one kind is chosen.
class qxCaptureDialog : public QDialog {
    Q_OBJECT

public:
    /// With `isUpdate` the set exists already: name and group are not asked for.
    qxCaptureDialog(const qxCaptureChoice &proposal, bool isUpdate, QWidget *parent = nullptr);

    qxCaptureChoice choice() const;

private:
    void buildNames(bool isUpdate);
    void allowAccept();
    /// If that name is taken, shows the name that the set will get.
    void showTaken(const QString &name);

    qxCaptureChoice m_proposal;
    QLineEdit *m_name;
    QLabel *m_taken;
    QComboBox *m_group;
    QList<QPair<QCheckBox *, bool qxCaptureChoice::*>> m_flags;
    QPushButton *m_accept;
};
