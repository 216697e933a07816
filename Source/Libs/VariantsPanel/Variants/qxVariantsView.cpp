#include "qxVariantsView.h"

#include "qxVariantsModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

const int stateChars = 14; ///< the width of the states
const int nameChars = 20; ///< what names get at least, with what stands before them
const int leastChars = 5; ///< states with less room are left out

/// Edits names. What is being typed stays when the row is shown anew.
class NameEditor : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        const auto *const line = qobject_cast<const QLineEdit *>(editor);
        if (!line || !line->isModified())
            QStyledItemDelegate::setEditorData(editor, index);
    }
};

} // namespace

qxVariantsView::qxVariantsView(qxVariantsModel *rows) : m_rows(rows)
{
    setModel(rows);
    setItemDelegate(new NameEditor(this));
    setSelectionMode(ExtendedSelection);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setContextMenuPolicy(Qt::CustomContextMenu);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setStretchLastSection(false);
    expandToDepth(0);
    hideEmptyKinds();
    connect(rows, &QAbstractItemModel::layoutChanged, this, [this] {
        hideEmptyKinds();
        Q_EMIT currentMoved();
        Q_EMIT selectionMoved();
    });
}

qxVariantName qxVariantsView::currentVariant() const
{
    return currentIndex().isValid() ? m_rows->nameAt(currentIndex()) : qxVariantName{};
}

QString qxVariantsView::currentOption() const
{
    return m_rows->optionAt(currentIndex());
}

/// In the order in which they are shown.
QModelIndexList qxVariantsView::selectedRows() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    const auto pathOf = [](QModelIndex index) {
        std::vector<int> path;
        for (; index.isValid(); index = index.parent())
            path.insert(path.begin(), index.row());
        return path;
    };
    std::sort(rows.begin(), rows.end(), [&](const QModelIndex &one, const QModelIndex &other) {
        return pathOf(one) < pathOf(other);
    });
    return rows;
}

qxVariantEdits::Variants qxVariantsView::selectedVariants() const
{
    qxVariantEdits::Variants variants;
    for (const qxDraggedState &each : selectedStates()) {
        if (each.state.isEmpty())
            variants.push_back({each.kind, each.variant});
    }
    return variants;
}

qxVariantEdits::States qxVariantsView::selectedStates() const
{
    qxVariantEdits::States states;
    for (const QModelIndex &index : selectedRows()) {
        const qxVariantName variant = m_rows->nameAt(index);
        if (m_rows->flags(index).testFlag(Qt::ItemIsDragEnabled))
            states.push_back({variant.kind, variant.name, m_rows->optionAt(index)});
    }
    return states;
}

QStringList qxVariantsView::selectedOptions() const
{
    const qxVariantName current = currentVariant();
    QStringList options;
    for (const qxDraggedState &each : selectedStates()) {
        if (each.kind == current.kind && each.variant == current.name && !each.state.isEmpty())
            options << each.state;
    }
    return options;
}

void qxVariantsView::showVariants(const qxVariantEdits::Variants &variants)
{
    QItemSelection selection;
    QModelIndex first;
    for (const qxVariantName &variant : variants) {
        const QModelIndex index = m_rows->indexOf(*variant.kind, variant.name);
        if (!index.isValid())
            continue;
        selection.select(index, index);
        if (!first.isValid())
            first = index;
    }
    setCurrent(first);
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void qxVariantsView::showOption(const qxVariantName &variant, const QString &option)
{
    const QModelIndex index = m_rows->indexOf(variant, option);
    if (!index.isValid())
        return showVariants({variant});
    setCurrent(index);
}

void qxVariantsView::setCurrent(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

void qxVariantsView::hideEmptyKinds()
{
    for (int row = 0; row < m_rows->rowCount(QModelIndex()); ++row) {
        const QModelIndex kind = m_rows->index(row, 0, QModelIndex());
        setRowHidden(row, QModelIndex(), m_rows->rowCount(kind) == 0);
    }
}

void qxVariantsView::shareWidth()
{
    const int all = viewport()->width();
    const int letter = fontMetrics().averageCharWidth();
    const int states = qBound(0, all - nameChars * letter, stateChars * letter);
    const bool isShown = states >= leastChars * letter;
    setColumnHidden(qxVariantsModel::StateColumn, !isShown);
    setColumnWidth(qxVariantsModel::StateColumn, states);
    setColumnWidth(qxVariantsModel::NameColumn, isShown ? all - states : all);
}

void qxVariantsView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    shareWidth();
}

void qxVariantsView::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        shareWidth();
}

void qxVariantsView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    Q_EMIT currentMoved();
}

void qxVariantsView::selectionChanged(const QItemSelection &selected,
                                      const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionMoved();
}
