#include "qxSetEntriesView.h"

#include "qxDragData.h"
#include "qxSetEntriesModel.h"
#include "qxStateEditor.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

qxSetEntriesView::qxSetEntriesView(qxSetEntriesModel *model) : m_model(model)
{
    setModel(model);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideMiddle); // Paths differ at their ends.
    setEditTriggers(NoEditTriggers); // Keys and clicks are looked at here.
    setDragDropMode(DropOnly);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setItemDelegateForColumn(qxSetEntriesModel::StateColumn, new qxStateEditor(this));
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setTextElideMode(Qt::ElideRight);
    header()->setSectionResizeMode(qxSetEntriesModel::NameColumn, QHeaderView::Stretch);
    connect(model, &qxSetEntriesModel::problemsChanged, this, &qxSetEntriesView::layColumns);
    connect(model, &QAbstractItemModel::layoutChanged, this, &qxSetEntriesView::layColumns);
}

/// Names come first: they get what they need, up to a half, and states what is left, so that a
/// state can be read beside long paths. The kind, which the tool tip has as well, is the first to
/// go.
void qxSetEntriesView::layColumns()
{
    typedef qxSetEntriesModel Model;
    const int letter = fontMetrics().averageCharWidth();
    const int width = viewport()->width();
    const bool hasProblems = m_model->hasProblems();
    const bool hasKind = width >= 60 * letter;
    setColumnHidden(Model::KindColumn, !hasKind);
    setColumnHidden(Model::ProblemColumn, !hasProblems);
    const int problem = hasProblems ? (hasKind ? 12 : 8) * letter : 0;
    const int kind = hasKind ? 12 * letter : 0;
    const int left = width - problem - kind;
    const int name = std::clamp(widthOfNames(), left / 3, left / 2);
    const int state = std::min(24 * letter, (left - name) / 2);
    header()->resizeSection(Model::KindColumn, kind);
    header()->resizeSection(Model::StateColumn, state);
    header()->resizeSection(Model::ShownColumn, state);
    header()->resizeSection(Model::ProblemColumn, problem);
}

/// Of the first ones: there may be thousands.
int qxSetEntriesView::widthOfNames() const
{
    int widest = 0;
    for (int row = 0; row < std::min(50, m_model->rowCount()); ++row) {
        const QString name =
            m_model->index(row, qxSetEntriesModel::NameColumn).data(Qt::DisplayRole).toString();
        widest = std::max(widest, fontMetrics().horizontalAdvance(name));
    }
    const int sign =
        m_model->hasProblems() ? style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) : 0;
    return widest + sign + 2 * fontMetrics().averageCharWidth();
}

QList<int> qxSetEntriesView::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows())
        rows << index.row();
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// Rows that follow each other are one range: there may be thousands.
void qxSetEntriesView::selectRows(const std::vector<int> &rows)
{
    std::vector<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    QItemSelection ranges;
    for (std::size_t first = 0, next = 1; first < sorted.size(); first = next++) {
        while (next < sorted.size() && sorted[next] <= sorted[next - 1] + 1)
            ++next;
        ranges.append(QItemSelectionRange(
            m_model->index(sorted[first], 0),
            m_model->index(sorted[next - 1], qxSetEntriesModel::ColumnCount - 1)));
    }
    if (!rows.empty())
        selectionModel()->setCurrentIndex(m_model->index(rows.back(), 0),
                                          QItemSelectionModel::NoUpdate);
    selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
}

void qxSetEntriesView::editState()
{
    const QModelIndex state =
        currentIndex().sibling(currentIndex().row(), qxSetEntriesModel::StateColumn);
    if (state.isValid())
        edit(state);
}

void qxSetEntriesView::setHint(const QString &text)
{
    m_hint = text;
    viewport()->update();
}

QSize qxSetEntriesView::sizeOfRows(int rows) const
{
    const int line = fontMetrics().height() * 5 / 4;
    return QSize(20 * fontMetrics().averageCharWidth(),
                 header()->sizeHint().height() + rows * line + 2 * frameWidth());
}

QSize qxSetEntriesView::sizeHint() const
{
    return sizeOfRows(10);
}

QSize qxSetEntriesView::minimumSizeHint() const
{
    return sizeOfRows(6);
}

void qxSetEntriesView::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers() == (event->modifiers() & Qt::KeypadModifier))
        return editState();
    QTreeView::keyPressEvent(event);
}

/// Not a press: that may begin a selection of several.
void qxSetEntriesView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && !event->modifiers()
        && index.column() == qxSetEntriesModel::StateColumn && selectedRows().size() == 1
        && index.row() == currentIndex().row())
        editState();
}

void qxSetEntriesView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    layColumns();
}

void qxSetEntriesView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_model->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = fontMetrics().height() / 2;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_hint);
}

void qxSetEntriesView::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void qxSetEntriesView::dragMoveEvent(QDragMoveEvent *event)
{
    if (!qxDragData::isKnown(*event->mimeData()) || m_model->set().isEmpty())
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void qxSetEntriesView::dropEvent(QDropEvent *event)
{
    if (!qxDragData::isKnown(*event->mimeData()) || m_model->set().isEmpty())
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT dropped(*event->mimeData());
}
