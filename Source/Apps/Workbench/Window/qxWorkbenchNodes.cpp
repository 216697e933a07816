#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "Variants/qxVariantsDock.h"
#include "qxNames.h"
#include "qxNodeKind.h"
#include "qxNodeMenu.h"
#include "qxNodeVisibility.h"
#include "qxPanelChanges.h"
#include "qxPanelEvents.h"
#include "qxSceneTree.h"
#include "qxSceneTreeModel.h"
#include "qxSceneView.h"
#include "qxViewpointMenu.h"
#include "qxWorkbenchWindow.h"

#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QTextDocument>
#include <QTreeView>

void qxWorkbenchWindow::buildNodes()
{
    m_sceneTree = new qxSceneTree(m_picked);
    m_tree = m_sceneTree->model();
    m_treeView = m_sceneTree->view();
    connect(m_sceneTree, &qxSceneTree::activated, m_view, &qxSceneView::fitPicked);
    connect(m_tree, &qxSceneTreeModel::visibilityTicked, this,
            [this](const QModelIndex &index, bool isShown) {
                m_visibility->tick(m_tree->nodeAt(index), isShown);
            });
    m_pickedText = new QLabel;
    m_pickedText->setObjectName(QStringLiteral("picked"));
    m_pickedText->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_pickedText, 1);
    connect(m_picked, &qxNodeSelection::changed, this, &qxWorkbenchWindow::tellPicked);
    connect(m_visibility, &qxNodeVisibility::aboutToChange, this,
            &qxWorkbenchWindow::rememberForBack);
    connect(m_visibility, &qxNodeVisibility::changed, m_treeView->viewport(),
            QOverload<>::of(&QWidget::update));
    connect(m_visibility, &qxNodeVisibility::changed, &qxPanelChanges::the(),
            &qxPanelChanges::sceneRestored);
    connect(m_events, &qxPanelEvents::statesChanged, m_visibility, &qxNodeVisibility::follow);
}

void qxWorkbenchWindow::buildNodeMenus()
{
    const auto tell = [this](const QString &text) { statusBar()->showMessage(text, 15000); };
    m_nodes = new qxNodeMenu(m_picked, m_visibility, m_sets->undoStack(), this);
    m_nodes->setTarget([this] { return m_sets->view()->currentSet(); });
    named(menuBar()->addMenu(m_nodes), QT_TR_NOOP("&Nodes"));
    const auto popUp = [this](const QPoint &place) { m_nodes->popup(place); };
    connect(m_view, &qxSceneView::menuWanted, this, popUp);
    connect(m_sceneTree, &qxSceneTree::menuWanted, this, popUp);
    connect(m_nodes, &qxNodeMenu::frameWanted, m_view, &qxSceneView::fitPicked);
    connect(m_nodes, &qxNodeMenu::variantWanted, m_variants, &qxVariantsDock::showVariant);
    connect(m_nodes, &qxNodeMenu::setWanted, m_sets, &qxVariantSetsDock::showSet);
    connect(m_nodes, &qxNodeMenu::told, this, tell);
    m_viewpoints = new qxViewpointMenu(m_sets->undoStack(), this);
    named(menuBar()->addMenu(m_viewpoints), QT_TR_NOOP("Viewp&oints"));
    connect(m_viewpoints, &qxViewpointMenu::told, this, tell);
    for (const auto changed : {&qxPanelEvents::statesChanged, &qxPanelEvents::setsChanged})
        connect(m_events, changed, m_viewpoints, &qxViewpointMenu::refresh);
}

/// Path and kind of what was picked last. Messages cover it for a while; one itself would be gone
/// as soon as a menu is opened.
void qxWorkbenchWindow::tellPicked()
{
    const osg::NodePtr node = m_picked->current();
    if (node == osg::NullFC)
        return m_pickedText->clear();
    const QString path = qxText::fromUtf8(qxNames::pathOf(node));
    const int count = int(m_picked->nodes().size());
    const QString kind = qxNodeKind::word(node->getCore());
    const QString text = count == 1
        ? tr("%1 (%2)").arg(path, kind)
        : tr("%n nodes picked, the last one: %1 (%2)", nullptr, count).arg(path, kind);
    m_pickedText->setText(
        fontMetrics().elidedText(text, Qt::ElideMiddle, statusBar()->width() * 2 / 3));
    m_pickedText->setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    statusBar()->clearMessage();
}
