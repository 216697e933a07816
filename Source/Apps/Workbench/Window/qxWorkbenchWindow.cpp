#include "qxWorkbenchWindow.h"

#include "qxVariantSetsDock.h"
#include "qxVariantsDock.h"

#include "Core/qxMainWindow.h"
#include "qxLogView.h"
#include "qxNodeUtils.h"
#include "qxPanelEvents.h"
#include "qxSceneTreeModel.h"
#include "qxSceneView.h"
#include "qxScriptConsole.h"
#include "qxSession.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTreeView>
#include <QUndoStack>

namespace {

const char *const layoutKey = "window/layout";
const char *const geometryKey = "window/geometry";

QString sceneFileIn(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        const QString suffix = QFileInfo(url.toLocalFile()).suffix().toLower();
        if (suffix == QLatin1String("gltf") || suffix == QLatin1String("glb"))
            return url.toLocalFile();
    }
    return QString();
}

} // namespace

qxWorkbenchWindow::qxWorkbenchWindow()
    : m_session(std::make_unique<qxSession>()), m_events(new qxPanelEvents(this)),
      m_view(new qxSceneView)
{
    qxMainWindow::set(this);
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    setCentralWidget(m_view);
    buildDocks();
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildSetsMenu();
    buildHelpMenu();
    connect(m_view, &qxSceneView::nodePicked, this, &qxWorkbenchWindow::showPicked);
    connect(m_view, &qxSceneView::progressed, statusBar(),
            [this](const QString &text) { statusBar()->showMessage(text); });
    connect(m_sets, &qxVariantSetsDock::aboutToSelect, this, &qxWorkbenchWindow::rememberForBack);
    connect(m_events, &qxPanelEvents::statesChanged, m_tree, &qxSceneTreeModel::refresh);
    for (const auto changed : {&qxPanelEvents::setsChanged, &qxPanelEvents::variantsChanged})
        connect(m_events, changed, this, [this] { setWindowModified(!m_path.isEmpty()); });
    showPath(QString());
    restoreLayout();
}

qxWorkbenchWindow::~qxWorkbenchWindow()
{
    // What shows the scene goes before the scene.
    m_before.reset();
    delete takeCentralWidget();
    for (QDockWidget *dock : findChildren<QDockWidget *>())
        delete dock;
    delete m_tree;
    delete m_events;
}

void qxWorkbenchWindow::buildDocks()
{
    m_sets = new qxVariantSetsDock(this);
    m_variants = new qxVariantsDock(this);
    m_tree = new qxSceneTreeModel(this);
    m_treeView = new QTreeView;
    m_treeView->setModel(m_tree);
    m_treeView->setUniformRowHeights(true);
    m_treeView->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_treeView->header()->setStretchLastSection(false);
    connect(m_treeView, &QTreeView::activated, this,
            [this](const QModelIndex &index) { m_view->fitNode(m_tree->nodeAt(index)); });
    m_log = new qxLogView;
    connect(m_log, &qxLogView::errorLogged, this, [this](const QString &line) {
        m_lastError = line;
        statusBar()->showMessage(line, 15000);
    });
    m_console = new qxScriptConsole;

    addDock(dockOf(m_treeView, tr("Scene"), QStringLiteral("scene")), Qt::LeftDockWidgetArea);
    addDock(m_variants, Qt::LeftDockWidgetArea);
    addDock(m_sets, Qt::RightDockWidgetArea);
    QDockWidget *const log = dockOf(m_log, tr("Log"), QStringLiteral("log"));
    addDock(log, Qt::BottomDockWidgetArea);
    QDockWidget *const console = dockOf(m_console, tr("Scripts"), QStringLiteral("scripts"));
    addDock(console, Qt::BottomDockWidgetArea);
    tabifyDockWidget(log, console);
    log->raise();
    resizeDocks({log}, {110}, Qt::Vertical);
    resizeDocks({m_sets, m_variants}, {340, 280}, Qt::Horizontal);
}

void qxWorkbenchWindow::addDock(QDockWidget *dock, Qt::DockWidgetArea area)
{
    addDockWidget(area, dock);
}

QDockWidget *qxWorkbenchWindow::dockOf(QWidget *contents, const QString &title, const QString &name)
{
    auto *const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(contents);
    return dock;
}

bool qxWorkbenchWindow::openFile(const QString &path)
{
    m_before.reset();
    m_back->setEnabled(false);
    m_lastError.clear();
    const bool isOpen = m_session->open(path);
    m_sets->undoStack()->clear();
    m_tree->refresh();
    m_view->showNewScene();
    m_events->flush();
    showPath(isOpen ? path : QString());
    if (isOpen)
        rememberRecent(path);
    else
        showFailure(tr("\"%1\" cannot be opened.").arg(QFileInfo(path).fileName()));
    return isOpen;
}

bool qxWorkbenchWindow::saveFile(const QString &path)
{
    m_lastError.clear();
    if (!m_session->save(path)) {
        showFailure(tr("\"%1\" cannot be saved.").arg(QFileInfo(path).fileName()));
        return false;
    }
    m_sets->undoStack()->setClean();
    showPath(path);
    rememberRecent(path);
    return true;
}

void qxWorkbenchWindow::showFailure(const QString &what)
{
    const QString reason = m_session->failure().isEmpty() ? m_lastError : m_session->failure();
    QMessageBox::warning(this, tr("Workbench"), what + QStringLiteral("\n\n") + reason);
}

void qxWorkbenchWindow::showPath(const QString &path)
{
    m_path = path;
    setWindowFilePath(path);
    setWindowTitle(path.isEmpty() ? tr("Workbench")
                                  : tr("%1[*] - Workbench").arg(QFileInfo(path).fileName()));
    setWindowModified(false);
}

void qxWorkbenchWindow::askAndOpen()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open a scene"), QFileInfo(m_path).path(), tr("Scenes (*.gltf *.glb)"));
    if (!path.isEmpty() && mayLeave())
        openFile(path);
}

void qxWorkbenchWindow::askAndSaveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the scene"), m_path,
                                                      tr("Scenes (*.gltf *.glb)"));
    if (!path.isEmpty())
        saveFile(path);
}

bool qxWorkbenchWindow::save()
{
    if (m_path.isEmpty())
        askAndSaveAs();
    return !m_path.isEmpty() && saveFile(m_path);
}

bool qxWorkbenchWindow::mayLeave()
{
    if (!isWindowModified())
        return true;
    const QMessageBox::StandardButton answer = QMessageBox::question(
        this, tr("Workbench"), tr("\"%1\" has unsaved changes.").arg(QFileInfo(m_path).fileName()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

void qxWorkbenchWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLeave())
        return event->ignore();
    QSettings settings;
    settings.setValue(layoutKey, saveState());
    settings.setValue(geometryKey, saveGeometry());
    QMainWindow::closeEvent(event);
}

void qxWorkbenchWindow::restoreLayout()
{
    const QSettings settings;
    resize(1280, 800);
    restoreGeometry(settings.value(geometryKey).toByteArray());
    restoreState(settings.value(layoutKey).toByteArray());
}

void qxWorkbenchWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!sceneFileIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void qxWorkbenchWindow::dropEvent(QDropEvent *event)
{
    const QString path = sceneFileIn(*event->mimeData());
    if (!path.isEmpty() && mayLeave())
        openFile(path);
}

void qxWorkbenchWindow::showPicked(const osg::NodePtr &node)
{
    const QModelIndex index = m_tree->indexOf(node);
    m_treeView->setCurrentIndex(index);
    if (index.isValid())
        m_treeView->scrollTo(index);
    statusBar()->showMessage(QString::fromStdString(qxNodeUtils::getName(node)));
}

void qxWorkbenchWindow::rememberForBack()
{
    m_before = std::make_unique<qxSceneKeeper>();
    m_back->setEnabled(true);
}

void qxWorkbenchWindow::goBack()
{
    if (!m_before)
        return;
    const std::unique_ptr<qxSceneKeeper> before = std::move(m_before);
    rememberForBack(); // Back again leads forward.
    before->restore();
    m_tree->refresh();
    m_view->update();
}
