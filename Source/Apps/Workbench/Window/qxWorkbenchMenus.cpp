#include "Problems/qxProblemsDock.h"
#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "Variants/qxVariantsDock.h"
#include "qxAnimationBar.h"
#include "qxController.h"
#include "qxIcons.h"
#include "qxLanguage.h"
#include "qxLightMenu.h"
#include "qxLogView.h"
#include "qxNodeSelection.h"
#include "qxOSGWidget.h"
#include "qxPictureExport.h"
#include "qxPresentation.h"
#include "qxRecentFiles.h"
#include "qxSceneView.h"
#include "qxScriptConsole.h"
#include "qxTheme.h"
#include "qxWindowLayout.h"
#include "qxWorkbenchWindow.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QToolBar>
#include <QTreeView>
#include <QUndoStack>

namespace {

const char *const iconTextsKey = "window/iconTexts";

} // namespace

QMenu *qxWorkbenchWindow::addMenu(const char *title)
{
    auto *const menu = new QMenu(this);
    named(menuBar()->addMenu(menu), title);
    return menu;
}

QAction *qxWorkbenchWindow::named(QAction *action, const char *text)
{
    m_texts.append({action, text});
    return action;
}

void qxWorkbenchWindow::buildFileMenu()
{
    QMenu *const menu = addMenu(QT_TR_NOOP("&File"));
    m_open =
        named(menu->addAction(QString(), this, &qxWorkbenchWindow::askAndOpen, QKeySequence::Open),
              QT_TR_NOOP("&Open..."));
    m_recent = new QMenu(this);
    named(menu->addMenu(m_recent), QT_TR_NOOP("Open &Recent"));
    connect(m_recent, &QMenu::aboutToShow, this, [this] { m_recentFiles->fill(*m_recent); });
    menu->addSeparator();
    m_save = named(menu->addAction(QString(), this, &qxWorkbenchWindow::save, QKeySequence::Save),
                   QT_TR_NOOP("&Save"));
    QAction *const saveAs =
        named(menu->addAction(QString(), this, &qxWorkbenchWindow::askAndSaveAs),
              QT_TR_NOOP("Save &As..."));
    // Few desktops have a key of their own for it.
    saveAs->setShortcuts(QKeySequence::keyBindings(QKeySequence::SaveAs).isEmpty()
                             ? QList<QKeySequence>{Qt::CTRL + Qt::SHIFT + Qt::Key_S}
                             : QKeySequence::keyBindings(QKeySequence::SaveAs));
    menu->addSeparator();
    named(menu->addAction(QString(), m_export, &qxPictureExport::savePicture),
          QT_TR_NOOP("Save &Picture..."));
    named(menu->addAction(QString(), m_export, &qxPictureExport::saveSheet),
          QT_TR_NOOP("Save S&heet..."));
    named(menu->addAction(QString(), m_export, &qxPictureExport::exportCatalogue),
          QT_TR_NOOP("Export Cata&logue..."));
    named(menu->addAction(QString(), m_export, &qxPictureExport::exportPage),
          QT_TR_NOOP("Export &Web Page..."));
    menu->addSeparator();
    named(menu->addAction(QString(), this, &qxWorkbenchWindow::showScripts),
          QT_TR_NOOP("S&cripts of This File..."));
    menu->addSeparator();
    named(menu->addAction(QString(), this, &QWidget::close, QKeySequence::Quit),
          QT_TR_NOOP("&Quit"));
}

void qxWorkbenchWindow::buildEditMenu()
{
    QMenu *const menu = addMenu(QT_TR_NOOP("&Edit"));
    QUndoStack *const stack = m_sets->undoStack();
    m_undo = menu->addAction(QString(), stack, &QUndoStack::undo, QKeySequence::Undo);
    m_redo = menu->addAction(QString(), stack, &QUndoStack::redo, QKeySequence::Redo);
    connect(stack, &QUndoStack::indexChanged, this, &qxWorkbenchWindow::showUndo);
    menu->addSeparator();
    m_back = named(menu->addAction(QString(), this, &qxWorkbenchWindow::goBack,
                                   QKeySequence(Qt::ALT + Qt::Key_Left)),
                   QT_TR_NOOP("&Back to the State Before"));
    m_back->setEnabled(false);
}

/// Qt's own actions would keep the language that they were made in.
void qxWorkbenchWindow::showUndo()
{
    const QUndoStack &stack = *m_sets->undoStack();
    const auto shown = [](QString step) { return step.replace('&', QLatin1String("&&")); };
    m_undo->setEnabled(stack.canUndo());
    m_undo->setText(stack.canUndo() ? tr("&Undo: %1").arg(shown(stack.undoText())) : tr("&Undo"));
    m_redo->setEnabled(stack.canRedo());
    m_redo->setText(stack.canRedo() ? tr("&Redo: %1").arg(shown(stack.redoText())) : tr("&Redo"));
}

void qxWorkbenchWindow::buildViewMenu()
{
    QMenu *const menu = addMenu(QT_TR_NOOP("&View"));
    m_everything = named(menu->addAction(QString(), m_view, &qxSceneView::fitScene),
                         QT_TR_NOOP("Show &Everything"));
    named(menu->addAction(QString(), m_view, &qxSceneView::goHome), QT_TR_NOOP("&Home"));
    m_rayTracing = named(menu->addAction(QString()), QT_TR_NOOP("&Ray Tracing"));
    m_rayTracing->setCheckable(true);
    m_rayTracing->setChecked(qxOSGWidget::getRaytracing());
    connect(m_rayTracing, &QAction::toggled, this, [](bool on) {
        qxOSGWidget::setRaytracing(on);
        qxController::updateRender(true);
    });
    named(menu->addMenu(new qxLightMenu(this)), QT_TR_NOOP("Light and Back&ground"));
    menu->addSeparator();
    menu->addAction(m_sets->galleryAction());
    menu->addAction(named(m_presentation->action(), QT_TR_NOOP("Presentatio&n")));
    menu->addAction(named(m_presentation->namesAction(), QT_TR_NOOP("Na&mes in Presentation")));
    menu->addSeparator();
    auto *const panes = new QMenu(this);
    named(menu->addMenu(panes), QT_TR_NOOP("&Panes"));
    buildPanesMenu(panes);
    auto *const themes = new QMenu(this);
    named(menu->addMenu(themes), QT_TR_NOOP("&Theme"));
    fillThemeMenu(themes);
    auto *const languages = new QMenu(this);
    named(menu->addMenu(languages), QT_TR_NOOP("&Language"));
    fillLanguageMenu(languages);
}

void qxWorkbenchWindow::buildPanesMenu(QMenu *menu)
{
    named(menu->addAction(
              QString(), this, [this] { focusPane(1); }, QKeySequence::NextChild),
          QT_TR_NOOP("&Next Pane"));
    QAction *const previous = named(menu->addAction(QString()), QT_TR_NOOP("&Previous Pane"));
    connect(previous, &QAction::triggered, this, [this] { focusPane(-1); });
    // With Shift, keyboards under X11 send another key than Tab.
    previous->setShortcuts({QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Tab),
                            QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Backtab)});
    menu->addSeparator();
    for (QDockWidget *dock : findChildren<QDockWidget *>())
        menu->addAction(dock->toggleViewAction());
    menu->addSeparator();
    m_tools = new QToolBar(this);
    menu->addAction(m_tools->toggleViewAction());
    QAction *const texts = named(menu->addAction(QString()), QT_TR_NOOP("&Text under Icons"));
    texts->setCheckable(true);
    connect(texts, &QAction::toggled, this, [this](bool on) {
        m_tools->setToolButtonStyle(on ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
        QSettings().setValue(iconTextsKey, on);
    });
    texts->setChecked(QSettings().value(iconTextsKey).toBool());
    menu->addAction(m_animation->toggleViewAction());
    menu->addSeparator();
    named(menu->addAction(QString(), this, [this] { m_layout->reset(); }),
          QT_TR_NOOP("&Reset Layout"));
}

QDockWidget *qxWorkbenchWindow::dockAround(QWidget *widget)
{
    while (widget && !qobject_cast<QDockWidget *>(widget))
        widget = widget->parentWidget();
    return static_cast<QDockWidget *>(widget);
}

/// Gives the keys to the pane that many places behind the one that has them now.
void qxWorkbenchWindow::focusPane(int step)
{
    QList<QWidget *> panes;
    for (QWidget *pane :
         {static_cast<QWidget *>(m_view), static_cast<QWidget *>(m_treeView), m_variants->widget(),
          m_sets->view()->currentWidget(), findChild<qxProblemsDock *>()->widget(),
          static_cast<QWidget *>(m_log), static_cast<QWidget *>(m_console)}) {
        const QDockWidget *const dock = dockAround(pane);
        if (!dock || dock->toggleViewAction()->isChecked())
            panes << pane;
    }
    int place = 0;
    for (int pane = 0; pane < panes.size(); ++pane) {
        const QDockWidget *const dock = dockAround(panes[pane]);
        if (dock && dock->isAncestorOf(focusWidget()))
            place = pane;
    }
    panes[(place + step + panes.size()) % panes.size()]->setFocus(Qt::TabFocusReason);
}

void qxWorkbenchWindow::fillLanguageMenu(QMenu *menu)
{
    auto *const choices = new QActionGroup(this);
    for (const QString &code : qxLanguage::codes()) {
        QAction *const action = menu->addAction(qxLanguage::nameOf(code));
        if (code.isEmpty())
            named(action, QT_TR_NOOP("&System"));
        action->setCheckable(true);
        action->setChecked(code == m_language->chosen());
        choices->addAction(action);
        connect(action, &QAction::triggered, this, [this, code] { m_language->choose(code); });
    }
}

void qxWorkbenchWindow::fillThemeMenu(QMenu *menu)
{
    auto *const choices = new QActionGroup(this);
    const auto add = [&](const char *text, qxTheme::Choice choice) {
        QAction *const action = named(choices->addAction(menu->addAction(QString())), text);
        action->setCheckable(true);
        action->setChecked(choice == qxTheme::chosen());
        connect(action, &QAction::triggered, this, [this, choice] { m_theme->choose(choice); });
    };
    add(QT_TR_NOOP("&System"), qxTheme::System);
    add(QT_TR_NOOP("&Light"), qxTheme::Light);
    add(QT_TR_NOOP("&Dark"), qxTheme::Dark);
}

/// All of it is in the menus, too.
void qxWorkbenchWindow::buildToolBar()
{
    m_tools->setObjectName(QStringLiteral("tools"));
    addToolBar(Qt::TopToolBarArea, m_tools);
    const auto add = [this](QAction *action, const char *icon) {
        action->setIcon(qxIcons::of(icon));
        action->setIconVisibleInMenu(false); // There a tick says what is on.
        m_tools->addAction(action);
    };
    add(m_open, "open");
    add(m_save, "save");
    m_tools->addSeparator();
    add(m_undo, "undo");
    add(m_redo, "redo");
    add(m_back, "back");
    m_tools->addSeparator();
    add(m_sets->captureAction(), "capture");
    add(m_sets->addSetAction(), "newSet");
    m_tools->addSeparator();
    add(m_everything, "everything");
    add(m_rayTracing, "rayTracing");
    add(m_sets->galleryAction(), "gallery");
    add(m_presentation->action(), "presentation");
}

void qxWorkbenchWindow::buildSetsMenu()
{
    addMenu(QT_TR_NOOP("&Sets"))->addActions(m_sets->setActions());
}

void qxWorkbenchWindow::buildVariantsMenu()
{
    addMenu(QT_TR_NOOP("V&ariants"))->addActions(m_variants->variantActions());
    const qxSetsView *const sets = m_sets->view();
    connect(sets, &qxSetsView::currentChanged, m_variants,
            [this, sets] { m_variants->setCurrentSet(sets->currentSet()); });
    connect(m_variants, &qxVariantsDock::setWanted, m_sets, &qxVariantSetsDock::showSet);
    connect(m_variants, &qxVariantsDock::nodeWanted, m_picked,
            [this](const osg::NodePtr &node) { m_picked->select({node}); });
    m_variants->setSelectedNodes([this] { return m_picked->nodes(); });
}

void qxWorkbenchWindow::buildHelpMenu()
{
    QMenu *const menu = addMenu(QT_TR_NOOP("&Help"));
    const auto showAbout = [this] {
        QMessageBox::about(this, tr("About Workbench"),
                           tr("Workbench %1 shows scenes in many states.")
                               .arg(QApplication::applicationVersion()));
    };
    named(
        menu->addAction(QString(), this, &qxWorkbenchWindow::showKeys, QKeySequence::HelpContents),
        QT_TR_NOOP("&Keys and Mouse"));
    named(menu->addAction(QString(), this, showAbout), QT_TR_NOOP("&About"));
}
