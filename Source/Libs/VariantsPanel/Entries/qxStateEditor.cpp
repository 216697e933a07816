#include "qxStateEditor.h"

#include "qxSetEntriesModel.h"
#include "qxStateList.h"
#include "qxStateWords.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QTimer>

namespace {

const qxSetEntry &entryAt(const QModelIndex &index)
{
    return static_cast<const qxSetEntriesModel *>(index.model())->entryAt(index.row());
}

void addChoice(QComboBox &list, const qxSetEntry &entry, const QString &state)
{
    const int row = list.count();
    list.addItem(qxSetEntries::wordOf(entry, state), state);
    list.setItemData(row, state, Qt::ToolTipRole);
    if (!entry.kind || !qxStateWords::isAction(*entry.kind, state))
        return;
    QFont font = list.font();
    font.setItalic(true);
    list.setItemData(row, font, Qt::FontRole);
}

void addChoices(QComboBox &list, const qxSetEntry &entry, const std::vector<QString> &choices)
{
    bool areActions = false;
    for (const QString &state : choices) {
        const bool isAction = entry.kind && qxStateWords::isAction(*entry.kind, state);
        if (isAction && !areActions && list.count() > 0)
            list.insertSeparator(list.count());
        areActions = isAction;
        addChoice(list, entry, state);
    }
}

} // namespace

QWidget *qxStateEditor::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                     const QModelIndex &index) const
{
    const qxSetEntry entry = entryAt(index);
    const std::vector<QString> choices = qxSetEntries::choicesOf(entry);
    if (choices.empty())
        return nullptr;
    auto *const list = new QComboBox(parent);
    list->setFrame(false);
    list->setAccessibleName(tr("State of \"%1\"").arg(qxSetEntries::nameOf(entry)));
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addChoices(*list, entry, choices);
    auto *const self = const_cast<qxStateEditor *>(this);
    connect(list, QOverload<int>::of(&QComboBox::activated), self, [self, list] {
        Q_EMIT self->commitData(list);
        Q_EMIT self->closeEditor(list);
    });
    QTimer::singleShot(0, list, &QComboBox::showPopup); // It has no place before.
    return list;
}

/// A state that there is no more is the first in the list: leaving the list keeps it.
void qxStateEditor::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *const list = static_cast<QComboBox *>(editor);
    const qxSetEntry &entry = entryAt(index);
    if (list->findData(entry.state) < 0) {
        list->insertItem(0, qxSetEntries::wordOf(entry, entry.state), entry.state);
        list->setItemData(0, entry.state, Qt::ToolTipRole);
    }
    list->setCurrentIndex(list->findData(entry.state));
}

void qxStateEditor::setModelData(QWidget *editor, QAbstractItemModel *model,
                                 const QModelIndex &index) const
{
    model->setData(index, static_cast<QComboBox *>(editor)->currentData(), Qt::EditRole);
}

void qxStateEditor::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (!entryAt(index).kind)
        return QStyledItemDelegate::paint(painter, option, index);
    const QStyle &style = *QApplication::style();
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);
    const int side = option.fontMetrics.height() * 3 / 4;
    cell.rect.adjust(0, 0, -side, 0);
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, option.widget);
    cell.rect = QRect(option.rect.right() - side, option.rect.top(), side, option.rect.height());
    style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &cell, painter, option.widget);
}
