#include "qxVariantSetsDock.h"

#include "qxController.h"
#include "qxLogView.h"
#include "qxOSGWidget.h"
#include "qxSceneView.h"
#include "qxScriptConsole.h"
#include "qxWorkbenchWindow.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QUndoStack>

void qxWorkbenchWindow::buildFileMenu()
{
    QMenu *const menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Open..."), this, &qxWorkbenchWindow::askAndOpen, QKeySequence::Open);
    m_recent = menu->addMenu(tr("Open &Recent"));
    connect(m_recent, &QMenu::aboutToShow, this, &qxWorkbenchWindow::fillRecentMenu);
    menu->addSeparator();
    menu->addAction(tr("&Save"), this, &qxWorkbenchWindow::save, QKeySequence::Save);
    menu->addAction(tr("Save &As..."), this, &qxWorkbenchWindow::askAndSaveAs,
                    QKeySequence::SaveAs);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
}

void qxWorkbenchWindow::buildEditMenu()
{
    QMenu *const menu = menuBar()->addMenu(tr("&Edit"));
    QUndoStack *const stack = m_sets->undoStack();
    QAction *const undo = stack->createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction *const redo = stack->createRedoAction(this, tr("&Redo"));
    redo->setShortcut(QKeySequence::Redo);
    menu->addActions({undo, redo});
    menu->addSeparator();
    m_back = menu->addAction(tr("&Back to the State Before"), this, &qxWorkbenchWindow::goBack,
                             QKeySequence(Qt::ALT + Qt::Key_Left));
    m_back->setEnabled(false);
}

void qxWorkbenchWindow::buildViewMenu()
{
    QMenu *const menu = menuBar()->addMenu(tr("&View"));
    menu->addAction(tr("Show &Everything"), m_view, &qxSceneView::fitScene);
    menu->addAction(tr("&Home"), m_view, &qxSceneView::goHome);
    QAction *const rayTracing = menu->addAction(tr("&Ray Tracing"));
    rayTracing->setCheckable(true);
    rayTracing->setChecked(qxOSGWidget::getRaytracing());
    connect(rayTracing, &QAction::toggled, this, [](bool on) {
        qxOSGWidget::setRaytracing(on);
        qxController::updateRender(true);
    });
    menu->addSeparator();
    for (QDockWidget *dock : findChildren<QDockWidget *>())
        menu->addAction(dock->toggleViewAction());
}

void qxWorkbenchWindow::buildSetsMenu()
{
    menuBar()->addMenu(tr("&Sets"))->addActions(m_sets->setActions());
}

void qxWorkbenchWindow::buildHelpMenu()
{
    QMenu *const menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&Mouse and Keys"), this, [this] {
        QMessageBox::information(
            this, tr("Mouse and keys"),
            tr("Left button: turn. Middle button, or left with Shift: move.\n"
               "Wheel or right button: zoom. Click: pick a node. Double click: look at it.\n"
               "Arrows: turn. + and -: zoom. F: show everything. Home: go home.\n\n"
               "Keys of sets select them anywhere but in text fields."));
    });
    menu->addAction(tr("&About"), this, [this] {
        QMessageBox::about(this, tr("About Workbench"),
                           tr("Workbench %1 shows scenes in many states.")
                               .arg(QApplication::applicationVersion()));
    });
}
