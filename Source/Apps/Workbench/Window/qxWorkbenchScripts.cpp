#include "qxLeftOutScripts.h"
#include "qxLog.h"
#include "qxScriptsDialog.h"
#include "qxSession.h"
#include "qxWorkbenchWindow.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QStatusBar>

#include <algorithm>

namespace {

bool isAny(const QList<qxFileScripts::Script> &scripts, qxScriptTrust::Decision decision)
{
    return std::any_of(scripts.begin(), scripts.end(),
                       [decision](const auto &script) { return script.decision == decision; });
}

} // namespace

/// What was decided about a script before is not asked again.
void qxWorkbenchWindow::askAboutScripts()
{
    if (isAny(m_session->scripts().list(), qxScriptTrust::Undecided))
        decideOnScripts();
    const QList<qxFileScripts::Script> scripts = m_session->scripts().list();
    if (isAny(scripts, qxScriptTrust::Undecided) || isAny(scripts, qxScriptTrust::Never))
        statusBar()->showMessage(
            tr("Scripts of this file are not run. \"File > Scripts of This File\" shows them."),
            15000);
}

void qxWorkbenchWindow::showScripts()
{
    if (!m_session->scripts().list().isEmpty())
        return decideOnScripts();
    QMessageBox::information(this, tr("Scripts of This File"),
                             tr("No set has a script that came with a file."));
}

void qxWorkbenchWindow::decideOnScripts()
{
    const QString name = QFileInfo(m_path).fileName();
    qxScriptsDialog dialog(name, m_session->scripts().list(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString reason = m_session->scripts().decide(dialog.decision(), m_path);
    if (!reason.isEmpty())
        showFailure(tr("The decision holds for now, but cannot be remembered."), reason);
}

void qxWorkbenchWindow::watchLeftOutScripts()
{
    m_leftOut = std::make_unique<qxLeftOutScripts>([this](const QString &set, const QString &line) {
        const QString text =
            tr("The script of \"%1\" was left out, as it is not trusted.").arg(set);
        statusBar()->showMessage(text, 15000);
        qxLog::info("Left out the script of \"%s\": %s", set.toUtf8().constData(),
                    line.toUtf8().constData());
    });
}
