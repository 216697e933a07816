#pragma once

#include <QListView>

class qxSetDelegate;

/// Sets as tiles with their previews, in sections with headings (qxSetsModel::Sections). The tiles
/// fill the width, whatever it is: as many as go into a row in about the size that was chosen.
///
/// Arrows lead over tiles and headings as they stand, Left and Right close and open a heading. The
/// wheel with Ctrl changes the size of the tiles.
class qxGallery : public QListView {
    Q_OBJECT

public:
    explicit qxGallery(QWidget *parent = nullptr);

    ///@{
    /// The width that tiles are to have about, in pixels; bounded by the font's size.
    int tileWidth() const { return m_wanted; }
    void setTileWidth(int width);
    int leastTileWidth() const;
    int mostTileWidth() const;
    ///@}

Q_SIGNALS:
    /// The tiles have another size.
    void zoomed();
    /// The user opens or closes the section of this group; empty for that of the sets in no group.
    void toggled(const QString &group);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void retranslate();
    void fitTiles();
    QModelIndex alongFrom(int row, int step, bool isPage);
    bool isHeading(int row) const;
    bool toggle(const QModelIndex &heading, bool wantsOpen);
    int lineBeside(int row, int step) const;
    int rowInLine(int row, int x) const;
    int moved(int row, int step, int x) const;
    int pageFrom(int row, int step, int x) const;
    QRect rectOf(int row) const;

    qxSetDelegate *m_delegate;
    int m_wanted = 0;
    int m_across = -1; ///< where Up and Down lead along; -1 after any other move
};
