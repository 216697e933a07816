#include "Script/qxBlockedScriptReport.h"
#include "Session/qxSession.h"
#include "qxDemo.h"
#include "qxLog.h"
#include "qxScriptsDialog.h"
#include "qxText.h"
#include "qxWorkbenchWindow.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QStatusBar>

#include <algorithm>

/// What was decided about a script before is not asked again.
void qxWorkbenchWindow::askAboutScripts()
{
    const QList<qxFileScripts::Script> undecided = m_session->scripts().undecided();
    if (m_path == qxDemo::scene()) // It came with the program, which has to be trusted, too.
        m_session->scripts().decide(undecided, qxTrustStore::Trusted, m_path);
    else if (!undecided.isEmpty())
        decideOn(undecided);
    const QList<qxFileScripts::Script> scripts = m_session->scripts().list();
    const auto isTrusted = [](const qxFileScripts::Script &script) {
        return script.decision == qxTrustStore::Trusted;
    };
    if (!std::all_of(scripts.begin(), scripts.end(), isTrusted))
        statusBar()->showMessage(
            tr("Scripts of this file are not run. \"File > Scripts of This File\" shows them."),
            15000);
}

void qxWorkbenchWindow::showScripts()
{
    const QList<qxFileScripts::Script> scripts = m_session->scripts().list();
    if (!scripts.isEmpty())
        return decideOn(scripts);
    QMessageBox::information(this, tr("Scripts of This File"),
                             tr("No set has a script that came with a file."));
}

void qxWorkbenchWindow::decideOn(const QList<qxFileScripts::Script> &scripts)
{
    qxScriptsDialog dialog(QFileInfo(m_path).fileName(), scripts, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString reason = m_session->scripts().decide(scripts, dialog.decision(), m_path);
    if (!reason.isEmpty())
        showFailure(tr("The decision holds for now, but cannot be remembered."), reason);
}

void qxWorkbenchWindow::watchBlockedScripts()
{
    m_blockedScripts =
        std::make_unique<qxBlockedScriptReport>([this](const QString &set, const QString &line) {
            const QString text =
                tr("The script of \"%1\" was left out, as it is not trusted.").arg(set);
            statusBar()->showMessage(text, 15000);
            qxLog::info("Left out the script of \"%s\": %s", qxText::toUtf8(set).c_str(),
                        qxText::toUtf8(line).c_str());
        });
}
