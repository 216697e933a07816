#pragma once

#include "qxPreviewCache.h"

#include <QStyledItemDelegate>

/// Draws sets and groups: as lines of a list, or as cards with their previews below headings.
///
/// A set that the scene shows now has a bar in the highlight colour at its side, as a card a frame;
/// an empty one and a hidden group are grey and italic; one that refers to nothing that exists has
/// a warning sign, a stale preview an arrow; the key stands at the right.
class qxSetDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Form { Lines, Cards };

    explicit qxSetDelegate(Form form, QObject *parent = nullptr);

    /// The widths of cards and headings in pixels. False if they are so already.
    bool setWidths(int card, int heading);
    /// Decoded previews of the cards.
    qxPreviewCache &previews() const { return m_previews; }
    /// The part of a heading that opens and closes it.
    QRect arrowOf(const QRect &heading, Qt::LayoutDirection direction) const;

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

    void paintHeading(QPainter *painter, const QStyleOptionViewItem &option,
                      const QModelIndex &index) const;
    void paintPicture(QPainter *painter, const QRect &place, const QStyleOptionViewItem &option,
                      const QModelIndex &index) const;
    QSize pictureSize() const;

    Form m_form;
    int m_cardWidth = 0;
    int m_headingWidth = 0;
    mutable qxPreviewCache m_previews;
};
