#include "qxWorkbenchWindow.h"

#include "Core/qxMainWindow.h"
#include "Entries/qxSetEntriesModel.h"
#include "Entries/qxSetEntriesView.h"
#include "Problems/qxProblems.h"
#include "Problems/qxProblemsDock.h"
#include "Script/qxBlockedScriptReport.h"
#include "Script/qxScriptCheck.h"
#include "Script/qxVariantBindings.h"
#include "Session/qxSession.h"
#include "Sets/qxGallery.h"
#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "Variants/qxVariantsDock.h"
#include "qxAnimationBar.h"
#include "qxController.h"
#include "qxFileClaim.h"
#include "qxKeysPage.h"
#include "qxLanguage.h"
#include "qxLogView.h"
#include "qxNodeVisibility.h"
#include "qxPanelChanges.h"
#include "qxPanelEvents.h"
#include "qxPictureDialog.h"
#include "qxPictureExport.h"
#include "qxPresentation.h"
#include "qxPreviewMaker.h"
#include "qxRecentFiles.h"
#include "qxRecovery.h"
#include "qxSceneTree.h"
#include "qxSceneTreeModel.h"
#include "qxSceneView.h"
#include "qxScenegraph.h"
#include "qxScriptConsole.h"
#include "qxStartPage.h"
#include "qxText.h"
#include "qxTheme.h"
#include "qxUnsavedChanges.h"
#include "qxWindowLayout.h"
#include "qxWindowWatchdog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QUndoStack>

namespace {

const char *const tileWidthKey = "window/tileWidth";

} // namespace

qxWorkbenchWindow::qxWorkbenchWindow()
    : m_language(std::make_unique<qxLanguage>()), m_theme(std::make_unique<qxTheme>()),
      m_session(std::make_unique<qxSession>()), m_events(new qxPanelEvents(this)),
      m_picked(new qxNodeSelection(this)), m_visibility(new qxNodeVisibility(this)),
      m_view(new qxSceneView(m_picked)), m_recentFiles(new qxRecentFiles(this)),
      m_start(new qxStartPage(m_recentFiles)), m_centre(new QStackedWidget),
      m_pictureDialog(std::make_unique<qxPictureDialog>(this))
{
    qxMainWindow::set(this);
    qxVariantBindings::setArguments(QStringList(QString())); // as at a prompt
    setAcceptDrops(true);
    m_centre->addWidget(m_start);
    m_centre->addWidget(m_view);
    setCentralWidget(m_centre);
    buildDocks();
    buildPictures();
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildNodeMenus();
    buildSetsMenu();
    buildVariantsMenu();
    buildHelpMenu();
    buildToolBar();
    connect(m_recentFiles, &qxRecentFiles::chosen, this, &qxWorkbenchWindow::openAnother);
    connect(m_start, &qxStartPage::fileWanted, this, &qxWorkbenchWindow::openAnother);
    connect(m_start, &qxStartPage::openWanted, this, &qxWorkbenchWindow::askAndOpen);
    connect(m_events, &qxPanelEvents::setsChanged, this, &qxWorkbenchWindow::showCentre);
    auto *const progress = new QLabel;
    statusBar()->addPermanentWidget(progress);
    connect(m_view, &qxSceneView::progressed, progress, &QLabel::setText);
    connect(m_sets, &qxVariantSetsDock::aboutToSelect, this, &qxWorkbenchWindow::rememberForBack);
    connect(m_events, &qxPanelEvents::aboutToForget, this, &qxWorkbenchWindow::forgetScene);
    connect(m_variants, &qxVariantsDock::aboutToSelect, this, &qxWorkbenchWindow::rememberForBack);
    connect(m_events, &qxPanelEvents::statesChanged, m_tree, &qxSceneTreeModel::refresh);
    m_unsaved = new qxUnsavedChanges(m_sets->undoStack(), m_events, this);
    connect(m_unsaved, &qxUnsavedChanges::looked, this, &qxWorkbenchWindow::showUnsaved);
    m_recovery = new qxRecovery(m_sets->undoStack(), m_events, this);
    connect(m_recovery, &qxRecovery::recoverWanted, this, &qxWorkbenchWindow::recover);
    connect(m_visibility, &qxNodeVisibility::changed, m_unsaved, &qxUnsavedChanges::look);
    connect(m_console, &qxScriptConsole::aboutToRun, this, &qxWorkbenchWindow::rememberForScript);
    connect(m_console, &qxScriptConsole::statementRan, this, &qxWorkbenchWindow::followScripts);
    // The dock with the focus may lie behind another one.
    connect(qApp, &QApplication::focusChanged, this, [](QWidget *, QWidget *now) {
        if (QDockWidget *const dock = dockAround(now))
            dock->raise();
    });
    m_watchdog = std::make_unique<qxWindowWatchdog>();
    connect(m_watchdog.get(), &qxWindowWatchdog::stillRuns, this,
            [this] { statusBar()->showMessage(tr("A script is running. Escape ends it."), 2000); });
    watchBlockedScripts();
    showPath(QString(), nullptr);
    retranslate();
    m_layout = new qxWindowLayout(this);
    m_layout->restore();
    m_animation->hide(); // until a scene has animations
    m_start->setFocus();
}

void qxWorkbenchWindow::rememberTileSize()
{
    qxGallery *const gallery = m_sets->view()->gallery();
    gallery->setTileWidth(QSettings().value(tileWidthKey, gallery->tileWidth()).toInt());
    connect(gallery, &qxGallery::zoomed, this,
            [gallery] { QSettings().setValue(tileWidthKey, gallery->tileWidth()); });
}

/// Whatever makes pictures besides the view.
void qxWorkbenchWindow::buildPictures()
{
    m_previews = new qxPreviewMaker(m_sets, m_events, this);
    connect(m_visibility, &qxNodeVisibility::changed, m_previews, &qxPreviewMaker::noteEdit);
    m_presentation = new qxPresentation(this, m_view, m_sets);
    connect(m_presentation, &qxPresentation::ended, this, &qxWorkbenchWindow::closeLater);
    connect(m_presentation->action(), &QAction::toggled, m_view,
            [this](bool on) { m_view->setOutlined(!on); });
    m_export = new qxPictureExport(this, *m_session, m_sets, [this] { return m_path; });
    connect(m_export, &qxPictureExport::done, this,
            [this](const QString &sentence) { statusBar()->showMessage(sentence, 15000); });
}

qxWorkbenchWindow::~qxWorkbenchWindow()
{
    // The stack emits signals while its dock is already destroyed.
    m_sets->undoStack()->disconnect(this);
    // Views of the scene are destroyed before the scene.
    delete m_previews;
    m_watchdog.reset();
    m_blockedScripts.reset();
    m_picked->clear();
    m_visibility->forget();
    m_before.reset();
    m_beforeScript.reset();
    delete m_keys;
    delete m_unsaved;
    delete m_recovery;
    delete m_animation;
    delete takeCentralWidget();
    for (QDockWidget *dock : findChildren<QDockWidget *>())
        delete dock;
    delete m_problems;
    delete m_events;
}

void qxWorkbenchWindow::buildDocks()
{
    m_sets = new qxVariantSetsDock(this);
    rememberTileSize();
    m_variants = new qxVariantsDock(m_sets->undoStack(), this);
    buildNodes();
    m_log = new qxLogView;
    connect(m_log, &qxLogView::errorLogged, this, [this](const QString &line) {
        m_lastError = line;
        statusBar()->showMessage(line, 15000);
    });
    m_console = new qxScriptConsole;
    buildProblems();
    m_animation = new qxAnimationBar(this);
    addToolBar(Qt::BottomToolBarArea, m_animation);
    giveKey(m_animation->playAction(), Qt::Key_Space);
    giveKey(m_animation->stopAction(), Qt::SHIFT + Qt::Key_Space);

    dockOf(m_sceneTree, QT_TR_NOOP("Scene"), QStringLiteral("scene"));
    dockOf(m_log, QT_TR_NOOP("Log"), QStringLiteral("log"));
    dockOf(m_console, QT_TR_NOOP("Scripts"), QStringLiteral("scripts"));
}

void qxWorkbenchWindow::buildProblems()
{
    const auto compile = [](const QString &script) {
        return qxText::fromUtf8(qxScriptCheck::flawOf(qxText::toUtf8(script)));
    };
    m_problems = new qxProblems(m_events, compile, this);
    m_sets->setProblems(m_problems);
    auto *const dock = new qxProblemsDock(m_problems, m_sets->edits(), this);
    connect(dock, &qxProblemsDock::setWanted, this,
            [this](const QString &set, const qxFindingPlace &place) {
                m_sets->showSet(set);
                showEntry(place);
            });
    connect(dock, &qxProblemsDock::groupWanted, m_sets, &qxVariantSetsDock::showGroup);
    connect(dock, &qxProblemsDock::variantWanted, m_variants, &qxVariantsDock::showOption);
}

void qxWorkbenchWindow::showEntry(const qxFindingPlace &place)
{
    auto *const entries = m_sets->findChild<qxSetEntriesView *>();
    const auto &model = static_cast<const qxSetEntriesModel &>(*entries->model());
    for (int row = 0; place.isEntry() && row < model.rowCount(); ++row) {
        const qxSetEntry &entry = model.entryAt(row);
        if (entry.kind == place.kind && entry.name == place.name)
            return entries->setCurrentIndex(model.index(row, 0));
    }
}

/// One that works while the view has the focus: lists use it themselves.
void qxWorkbenchWindow::giveKey(QAction *action, const QKeySequence &key)
{
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_view->QWidget::addAction(action);
}

QDockWidget *qxWorkbenchWindow::dockOf(QWidget *contents, const char *title, const QString &name)
{
    auto *const dock = new QDockWidget(this);
    m_titles.append({dock, title});
    dock->setObjectName(name);
    dock->setWidget(contents);
    return dock;
}

void qxWorkbenchWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxWorkbenchWindow::retranslate()
{
    for (const auto &action : m_texts)
        action.first->setText(tr(action.second));
    for (const auto &dock : m_titles) {
        dock.first->setWindowTitle(tr(dock.second));
        dock.first->widget()->setAccessibleName(dock.first->windowTitle());
    }
    m_tools->setWindowTitle(tr("Tools"));
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    m_back->setIconText(tr("Back"));
    showUndo();
    showTitle();
}

void qxWorkbenchWindow::closeEvent(QCloseEvent *event)
{
    if (m_presentation->isRunning()) { // The layout to remember is the one before it.
        m_closesLater = true;
        m_presentation->end();
        return event->ignore();
    }
    if (!mayLeave())
        return event->ignore();
    m_layout->save();
    QMainWindow::closeEvent(event);
}

void qxWorkbenchWindow::closeLater()
{
    if (m_closesLater)
        QTimer::singleShot(0, this, &QWidget::close);
    m_closesLater = false;
}

/// The start page, as long as there is neither a scene nor a set.
void qxWorkbenchWindow::showCentre()
{
    const bool isEmpty =
        m_path.isEmpty() && m_session->isEmpty() && qxScenegraph::getRoot()->getNChildren() == 0;
    QWidget *const shown = isEmpty ? static_cast<QWidget *>(m_start) : m_view;
    if (m_centre->currentWidget() == shown)
        return;
    const bool hadFocus = m_centre->isAncestorOf(focusWidget());
    m_centre->setCurrentWidget(shown);
    if (hadFocus)
        shown->setFocus();
}

void qxWorkbenchWindow::showKeys()
{
    delete m_keys; // The keys of sets may be others now.
    m_keys = new qxKeysPage(*this, this);
    m_keys->show();
}

void qxWorkbenchWindow::rememberForBack()
{
    m_before = std::make_unique<qxSceneSnapshot>();
    m_back->setEnabled(true);
}

/// Records of the old scene are dropped with it.
void qxWorkbenchWindow::forgetScene()
{
    m_before.reset();
    m_beforeScript.reset();
    m_picked->clear();
    m_visibility->forget();
    m_back->setEnabled(false);
    m_isNewScene = true;
}

void qxWorkbenchWindow::goBack()
{
    if (!m_before)
        return;
    const std::unique_ptr<qxSceneSnapshot> before = std::move(m_before);
    rememberForBack(); // Back again leads forward.
    before->restore();
    Q_EMIT qxPanelChanges::the().sceneRestored();
    qxController::updateRender(true);
}

void qxWorkbenchWindow::rememberForScript()
{
    m_beforeScript = std::make_unique<qxSceneSnapshot>();
}

/// Changes of nodes by scripts are not announced, so everything is refreshed.
void qxWorkbenchWindow::followScripts()
{
    if (m_beforeScript && !m_beforeScript->isStillSo()) {
        m_before = std::move(m_beforeScript);
        m_back->setEnabled(true);
    }
    m_beforeScript.reset();
    m_events->flush();
    m_tree->refresh();
    m_problems->lookAtScene();
    m_unsaved->look();
    m_recovery->keep();
}
