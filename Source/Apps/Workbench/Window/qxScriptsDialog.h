#pragma once

#include "Script/qxFileScripts.h"

#include <QDialog>

class QDialogButtonBox;
class QPlainTextEdit;
class QTreeWidget;

/// Shows the scripts that came with a file, and asks whether they may run. If accepted, the user
/// has decided; otherwise nothing changes.
class qxScriptsDialog : public QDialog {
    Q_OBJECT

public:
    /// `file` is the name to show.
    qxScriptsDialog(const QString &file, const QList<qxFileScripts::Script> &scripts,
                    QWidget *parent);

    qxTrustStore::Decision decision() const { return m_decision; }

private:
    QWidget *buildScripts();
    void addButton(QDialogButtonBox *buttons, const QString &text, qxTrustStore::Decision decision);
    void showScript();

    QList<qxFileScripts::Script> m_scripts;
    QTreeWidget *m_sets;
    QPlainTextEdit *m_text;
    qxTrustStore::Decision m_decision = qxTrustStore::Undecided;
};
