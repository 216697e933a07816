#include "Problems/qxProblems.h"
#include "Session/qxSession.h"
#include "Sets/qxVariantSetsDock.h"
#include "qxController.h"
#include "qxDemo.h"
#include "qxFileClaim.h"
#include "qxPanelEvents.h"
#include "qxRecentFiles.h"
#include "qxRecovery.h"
#include "qxSceneTree.h"
#include "qxSceneTreeModel.h"
#include "qxSceneView.h"
#include "qxViewpointMenu.h"
#include "qxWorkbenchWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>
#include <QUndoStack>

namespace {

/// Says what takes its time, and how far it is, as long as it lives.
class BusyLine {
public:
    BusyLine(QStatusBar *bar, const QStringList &steps) : m_bar(bar), m_steps(steps)
    {
        qxController::setBusy(true, true);
        m_progress.setRange(0, steps.size());
        m_progress.setTextVisible(false);
        m_progress.setMaximumWidth(bar->width() / 4);
        bar->addPermanentWidget(&m_progress);
        m_progress.show();
        takeStep(0);
    }
    BusyLine(const BusyLine &) = delete;
    ~BusyLine()
    {
        m_bar->clearMessage();
        qxController::setBusy(false, true);
    }

    void takeStep(int step)
    {
        m_progress.setValue(step);
        m_bar->showMessage(m_steps[step]);
        m_bar->layout()->activate();
        m_bar->repaint(); // Nothing else is painted until the work is done.
    }

private:
    QStatusBar *m_bar;
    QStringList m_steps;
    QProgressBar m_progress;
};

QStringList sceneFilesIn(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        const QString suffix = QFileInfo(url.toLocalFile()).suffix().toLower();
        if (suffix == QLatin1String("gltf") || suffix == QLatin1String("glb"))
            paths << url.toLocalFile();
    }
    return paths;
}

/// Names of files are no markup.
void makePlain(QMessageBox &box)
{
    for (QLabel *label : box.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace

bool qxWorkbenchWindow::openFile(const QString &path)
{
    auto claim = std::make_unique<qxFileClaim>(path); // So that a second window asks this one.
    const QString name = QFileInfo(path).fileName();
    m_lastError.clear();
    m_isNewScene = false;
    bool isOpen = false;
    QString reason;
    {
        BusyLine busy(statusBar(),
                      {tr("Opening \"%1\": file...").arg(name),
                       tr("Opening \"%1\": materials...").arg(name),
                       tr("Opening \"%1\": nodes...").arg(name),
                       tr("Opening \"%1\": variants...").arg(name)});
        isOpen = m_session->open(path, [&](int step) { busy.takeStep(step); });
        reason = failureReason();
        if (isOpen)
            showPath(path, std::move(claim));
        else if (m_isNewScene)
            takeBackScene();
        if (m_isNewScene)
            showNewScene();
    }
    if (isOpen)
        m_recentFiles->remember(path);
    else
        showFailure(tr("\"%1\" cannot be opened.").arg(name), reason);
    if (isOpen) {
        askAboutScripts();
        m_recovery->offer(path);
    }
    return isOpen;
}

void qxWorkbenchWindow::offerRecovery()
{
    m_recovery->offerAll();
}

/// The scene of the edits comes from its file first, unless it is open as its file has it.
void qxWorkbenchWindow::recover(const qxRecoveryFile::Left &left)
{
    const bool isOpen =
        left.scene == (m_path.isEmpty() ? QString() : QFileInfo(m_path).absoluteFilePath())
        && m_unsaved->sort() == qxUnsavedChanges::None;
    if (!isOpen && (!mayLeave() || !openOrClose(left.scene)))
        return;
    m_recovery->recover(left);
    m_events->flush();
    m_tree->refresh();
    m_unsaved->look();
}

bool qxWorkbenchWindow::openOrClose(const QString &path)
{
    if (!path.isEmpty())
        return openFile(path);
    m_session->close();
    showPath(path, nullptr);
    showNewScene();
    return true;
}

/// Half a scene must not be saved. The one before it comes from its file again.
void qxWorkbenchWindow::takeBackScene()
{
    if (!m_path.isEmpty() && m_session->open(m_path))
        return;
    m_session->close();
    showPath(QString(), nullptr);
}

void qxWorkbenchWindow::openAnother(const QString &path)
{
    {
        const qxFileClaim claim(path);
        if (!claim.isHeld() && !(m_claim && m_claim->isOf(path)) && showOtherWindow(claim, path))
            return;
    }
    if (mayLeave())
        openFile(path);
}

/// False when the user wants the file in this window all the same.
bool qxWorkbenchWindow::showOtherWindow(const qxFileClaim &claim, const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    if (claim.showHolder()) {
        statusBar()->showMessage(tr("\"%1\" is open in another window.").arg(name), 15000);
        return true;
    }
    QMessageBox box(QMessageBox::Question, tr("Workbench"),
                    tr("\"%1\" is open in another window, which does not answer.").arg(name),
                    QMessageBox::Cancel, this);
    box.setInformativeText(tr("What is saved there and what is saved here are two versions. Saving "
                              "asks before it overwrites the other one."));
    const QPushButton *const open = box.addButton(tr("Open Here, Too"), QMessageBox::AcceptRole);
    makePlain(box);
    box.exec();
    return box.clickedButton() != open;
}

void qxWorkbenchWindow::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    QApplication::alert(this); // Where the desktop keeps the focus with the other program.
}

void qxWorkbenchWindow::showNewScene()
{
    m_sets->undoStack()->clear();
    m_sceneTree->showNewScene();
    m_view->showNewScene();
    m_viewpoints->showNewScene();
    m_events->flush();
    m_problems->lookAtScene();
    m_unsaved->forget();
    m_recovery->begin(m_path);
}

bool qxWorkbenchWindow::saveFile(const QString &path)
{
    if (!m_session->file().isChangedByOthers(path))
        return write(path);
    const QString name = QFileInfo(path).fileName();
    QMessageBox box(QMessageBox::Warning, tr("Workbench"),
                    tr("\"%1\" has changed on the disk since it was opened.").arg(name),
                    QMessageBox::Cancel, this);
    box.setInformativeText(
        tr("Another program has written the file, or one with its buffers. Overwriting it loses "
           "what is new there."));
    const QPushButton *const overwrite =
        box.addButton(tr("Overwrite"), QMessageBox::DestructiveRole);
    QPushButton *const saveAs = box.addButton(tr("Save As..."), QMessageBox::AcceptRole);
    box.setDefaultButton(saveAs);
    makePlain(box);
    box.exec();
    if (box.clickedButton() == overwrite)
        return write(path);
    return box.clickedButton() == saveAs && askAndSaveAs();
}

bool qxWorkbenchWindow::write(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    m_lastError.clear();
    auto claim = std::make_unique<qxFileClaim>(path);
    const bool isOwn = m_claim && m_claim->isOf(path);
    if (!claim->isHeld() && !isOwn && path != m_path) {
        showFailure(tr("\"%1\" cannot be saved.").arg(name),
                    tr("The file is open in another window. Close it there, or save under another "
                       "name."));
        return false;
    }
    bool isSaved = false;
    {
        const BusyLine busy(statusBar(), {tr("Saving \"%1\"...").arg(name)});
        isSaved = m_session->save(path);
    }
    if (!isSaved) {
        showFailure(tr("\"%1\" cannot be saved.").arg(name), failureReason());
        return false;
    }
    m_events->flush();
    m_sets->undoStack()->setClean();
    m_unsaved->forget();
    m_recovery->begin(path);
    showPath(path, std::move(claim));
    m_recentFiles->remember(path);
    statusBar()->showMessage(tr("\"%1\" is saved.").arg(name), 5000);
    return true;
}

QString qxWorkbenchWindow::failureReason() const
{
    return m_session->failure().isEmpty() ? m_lastError : m_session->failure();
}

void qxWorkbenchWindow::showFailure(const QString &what, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Workbench"), what, QMessageBox::Ok, this);
    box.setInformativeText(reason);
    makePlain(box);
    box.exec();
}

/// The claim is that of the file, unless the window has it already.
void qxWorkbenchWindow::showPath(const QString &path, std::unique_ptr<qxFileClaim> claim)
{
    m_path = path;
    if (path.isEmpty() || !m_claim || !m_claim->isOf(path))
        m_claim = std::move(claim);
    if (m_claim)
        connect(m_claim.get(), &qxFileClaim::wanted, this, &qxWorkbenchWindow::comeToFront,
                Qt::UniqueConnection);
    setWindowFilePath(path);
    showTitle();
    showCentre();
}

void qxWorkbenchWindow::showTitle()
{
    const QString name = QFileInfo(m_path).fileName();
    if (m_path.isEmpty())
        setWindowTitle(tr("Workbench[*]"));
    else if (m_showsOtherState)
        setWindowTitle(tr("%1 (shows another state) - Workbench").arg(name));
    else
        setWindowTitle(tr("%1[*] - Workbench").arg(name));
}

void qxWorkbenchWindow::showUnsaved(qxUnsavedChanges::Sort sort)
{
    m_showsOtherState = sort == qxUnsavedChanges::ShownState;
    setWindowModified(sort == qxUnsavedChanges::Edits);
    showTitle();
}

void qxWorkbenchWindow::askAndOpen()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a scene"), usualFolder(),
                                                      tr("Scenes (*.gltf *.glb)"));
    if (!path.isEmpty())
        openAnother(path);
}

bool qxWorkbenchWindow::askAndSaveAs()
{
    finishTyping();
    QFileDialog dialog(this, tr("Save the scene"), usualFolder(), tr("Scenes (*.gltf *.glb)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QString suffix = QFileInfo(m_path).suffix();
    dialog.setDefaultSuffix(suffix.isEmpty() ? QStringLiteral("gltf") : suffix);
    dialog.selectFile(QFileInfo(m_path).fileName());
    return dialog.exec() == QDialog::Accepted && saveFile(dialog.selectedFiles().value(0));
}

bool qxWorkbenchWindow::save()
{
    finishTyping();
    return m_path.isEmpty() || isToBeCopied() ? askAndSaveAs() : saveFile(m_path);
}

/// Whether the file stays as it is: the demo, and what this user cannot write.
bool qxWorkbenchWindow::isToBeCopied() const
{
    const QFileInfo file(m_path);
    return m_path == qxDemo::scene() || (file.exists() && !file.isWritable());
}

/// Where the user's scenes are, as far as it is known.
QString qxWorkbenchWindow::usualFolder() const
{
    if (m_path.isEmpty() || isToBeCopied())
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(m_path).path();
}

/// Fields take what was typed when they are left.
void qxWorkbenchWindow::finishTyping()
{
    QWidget *const field = focusWidget();
    if (!field)
        return;
    const QPointer<QWidget> alive(field);
    field->clearFocus();
    m_events->flush();
    if (alive)
        alive->setFocus();
}

bool qxWorkbenchWindow::mayLeave()
{
    finishTyping();
    const qxUnsavedChanges::Sort sort = m_unsaved->sort();
    if (sort == qxUnsavedChanges::None)
        return true;
    const bool isEdited = sort == qxUnsavedChanges::Edits;
    QString text = isEdited ? tr("\"%1\" has unsaved changes.")
                            : tr("\"%1\" shows another state than its file.");
    text = m_path.isEmpty() ? tr("The scene has unsaved changes.")
                            : text.arg(QFileInfo(m_path).fileName());
    QMessageBox box(QMessageBox::Question, tr("Workbench"), text,
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    if (!isEdited)
        box.setInformativeText(
            tr("Sets and variants are saved. Saving also keeps what is shown now, "
               "as the state in which the file opens."));
    box.setDefaultButton(isEdited ? QMessageBox::Save : QMessageBox::Discard);
    makePlain(box);
    const int answer = box.exec();
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

void qxWorkbenchWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!sceneFilesIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void qxWorkbenchWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = sceneFilesIn(*event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    // Where the files come from waits for the answer to the drop, not for that to a question.
    QTimer::singleShot(0, this, [this, paths] { openFirst(paths); });
}

void qxWorkbenchWindow::openFirst(const QStringList &paths)
{
    openAnother(paths.first());
    if (paths.size() > 1 && m_path == paths.first())
        statusBar()->showMessage(tr("One scene is open at a time: the others were left out."),
                                 15000);
}
