#pragma once

#include <QStyledItemDelegate>

/// Draws sets and groups: as lines of a list, or as cards with their previews.
///
/// A set that the scene shows now has a bar in the highlight colour at its side; an empty one
/// and a hidden group are grey and italic; one that refers to nothing that exists has a warning
/// sign; the key stands at the right.
class qxSetDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Form { Lines, Cards };

    explicit qxSetDelegate(Form form, QObject *parent = nullptr);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    void paintLine(QPainter *painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const;
    void paintCard(QPainter *painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const;

    Form m_form;
};
