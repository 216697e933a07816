#include "qxSceneTree.h"

#include "qxSceneTreeModel.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

/// Rows that a search opens at once; of more, only those around the match that one goes to.
const int mostOpened = 2000;

} // namespace

qxSceneTree::qxSceneTree(qxNodeSelection *picked, QWidget *parent)
    : QWidget(parent), m_picked(picked), m_model(new qxSceneTreeModel(this)), m_view(new QTreeView),
      m_search(new QLineEdit), m_found(new QLabel)
{
    auto *const top = new QHBoxLayout;
    top->setContentsMargins(4, 4, 4, 0);
    top->addWidget(m_search, 1);
    top->addWidget(m_found);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_view, 1);
    buildView();
    buildSearch();
    retranslate();
    connect(m_picked, &qxNodeSelection::changed, this, &qxSceneTree::showPicked);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, &qxSceneTree::selectPicked);
}

void qxSceneTree::buildView()
{
    m_view->setModel(m_model);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setExpandsOnDoubleClick(false);
    m_view->setDragEnabled(true);
    m_view->setDragDropMode(QAbstractItemView::DragOnly);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setIndentation(m_view->fontMetrics().height() * 2 / 3);
    QHeaderView *const header = m_view->header();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setMaximumSectionSize(60 * m_view->fontMetrics().averageCharWidth());
    header->setStretchLastSection(false);
    m_view->installEventFilter(this);
    connect(m_view, &QTreeView::activated, this, &qxSceneTree::activated);
    connect(m_view, &QWidget::customContextMenuRequested, this, &qxSceneTree::wantMenu);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &qxSceneTree::pickSelected);
}

void qxSceneTree::buildSearch()
{
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_found->hide();
    connect(m_search, &QLineEdit::textChanged, this, &qxSceneTree::filter);
    const auto add = [this](const QKeySequence &key, Qt::ShortcutContext where) {
        auto *const action = new QAction(this);
        action->setShortcut(key);
        action->setShortcutContext(where);
        addAction(action);
        return action;
    };
    m_goToSearch = add(Qt::CTRL + Qt::SHIFT + Qt::Key_F, Qt::WindowShortcut);
    m_next = add(Qt::Key_F3, Qt::WidgetWithChildrenShortcut);
    m_previous = add(Qt::SHIFT + Qt::Key_F3, Qt::WidgetWithChildrenShortcut);
    connect(m_goToSearch, &QAction::triggered, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    connect(m_next, &QAction::triggered, this, [this] { goToMatch(true); });
    connect(m_previous, &QAction::triggered, this, [this] { goToMatch(false); });
}

void qxSceneTree::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxSceneTree::retranslate()
{
    m_search->setPlaceholderText(tr("Search nodes"));
    m_search->setToolTip(tr("Words of a node's name or kind. Enter goes to the next one that is "
                            "found, Escape ends the search."));
    m_search->setAccessibleName(tr("Search nodes"));
    m_view->setAccessibleName(tr("Nodes of the scene"));
    m_goToSearch->setText(tr("Search Nodes"));
    m_next->setText(tr("Next Node Found"));
    m_previous->setText(tr("Previous Node Found"));
    m_model->retranslate();
    showFound();
}

void qxSceneTree::showNewScene()
{
    m_expanded.clear();
    m_search->clear();
    m_model->refresh();
    m_view->expandToDepth(0);
}

void qxSceneTree::filter()
{
    const bool wasFiltered = m_model->isFiltered();
    if (!wasFiltered) {
        m_expanded.clear();
        for (QModelIndex each = m_model->index(0, 0, {}); each.isValid();
             each = m_view->indexBelow(each)) {
            if (m_view->isExpanded(each))
                m_expanded.emplace_back(m_model->nodeAt(each));
        }
    }
    m_model->setFilter(m_search->text());
    if (m_model->isFiltered()) {
        openMatches();
    } else if (wasFiltered) {
        for (const osg::NodeRefPtr &node : m_expanded)
            m_view->expand(m_model->indexOf(node.get()));
        m_expanded.clear();
        selectPicked();
    }
    showFound();
}

void qxSceneTree::openMatches()
{
    if (m_model->rowsShown() <= mostOpened)
        return m_view->expandAll();
    const QModelIndex first = m_model->matchBeside(QModelIndex(), true);
    for (QModelIndex above = first.parent(); above.isValid(); above = above.parent())
        m_view->expand(above);
    m_view->scrollTo(first);
}

void qxSceneTree::showFound()
{
    m_found->setVisible(m_model->isFiltered());
    m_found->setText(m_model->isFiltered() ? tr("%n found", nullptr, m_model->matchCount())
                                           : QString());
}

void qxSceneTree::goToMatch(bool isBelow)
{
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    const QModelIndex match =
        m_model->matchBeside(selected.isEmpty() ? QModelIndex() : m_view->currentIndex(), isBelow);
    if (match.isValid())
        m_picked->select({m_model->nodeAt(match)});
}

bool qxSceneTree::takeSearchKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return goToMatch(!(modifiers & Qt::ShiftModifier)), true;
    if (key == Qt::Key_Down) {
        if (m_view->selectionModel()->selectedRows().isEmpty())
            goToMatch(true);
        return m_view->setFocus(), true;
    }
    if (key != Qt::Key_Escape)
        return false;
    m_search->clear();
    m_view->setFocus();
    return true;
}

bool qxSceneTree::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    if (watched == m_search)
        return takeSearchKey(key->key(), key->modifiers());
    if (key->key() != Qt::Key_Escape)
        return false;
    if (m_model->isFiltered())
        m_search->clear();
    else
        m_picked->clear();
    return true;
}

void qxSceneTree::pickSelected()
{
    if (m_isFollowing)
        return;
    qxNodeSelection::Nodes nodes;
    QModelIndexList selected = m_view->selectionModel()->selectedRows();
    // The last one is the one that keys go on from.
    const QModelIndex current = m_view->currentIndex().siblingAtColumn(0);
    if (selected.removeOne(current))
        selected.append(current);
    for (const QModelIndex &index : selected)
        nodes.push_back(m_model->nodeAt(index));
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    m_picked->select(nodes);
}

/// A search that hides what is picked elsewhere has had its time.
void qxSceneTree::showPicked()
{
    const osg::NodePtr current = m_picked->current();
    if (current != osg::NullFC && !m_model->indexOf(current).isValid())
        m_search->clear();
    selectPicked();
}

void qxSceneTree::selectPicked()
{
    if (m_isFollowing)
        return;
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    const osg::NodePtr current = m_picked->current();
    QItemSelection rows;
    for (const osg::NodePtr &node : m_picked->nodes()) {
        const QModelIndex index = m_model->indexOf(node);
        rows.select(index, index);
    }
    QItemSelectionModel &selection = *m_view->selectionModel();
    const QModelIndex index = m_model->indexOf(current);
    selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    selection.select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (index.isValid())
        showRow(index);
}

/// The view scrolls to the start of the column, which may show only indentation.
void qxSceneTree::showRow(const QModelIndex &index)
{
    m_view->scrollTo(index);
    m_view->header()->resizeSections(QHeaderView::ResizeToContents);
    const int begin = m_view->visualRect(index).left();
    const int end = begin + m_view->sizeHintForIndex(index).width();
    QScrollBar *const bar = m_view->horizontalScrollBar();
    bar->setValue(bar->value() + qBound(0, end - m_view->viewport()->width(), begin));
    m_view->scrollTo(index); // The bar may have come just now, and covers the last row.
}

void qxSceneTree::wantMenu(const QPoint &place)
{
    Q_EMIT menuWanted(m_view->viewport()->mapToGlobal(place));
}
