#pragma once

#include <QTreeView>

class qxSetEntriesModel;

/// The table of what a set holds: variants' states, and what else there is, a row for each.
///
/// Names get the room when there is little. Enter, or a click on a state, lets the list of states
/// drop down. What is dragged from other docks may be dropped here.
class qxSetEntriesView : public QTreeView {
    Q_OBJECT

public:
    explicit qxSetEntriesView(qxSetEntriesModel *model);

    /// The rows that are selected, from the first to the last.
    QList<int> selectedRows() const;
    /// Selects these alone; the last of them gets the cursor.
    void selectRows(const std::vector<int> &rows);
    /// Lets the states of the current row drop down.
    void editState();
    /// What to show while there are no rows.
    void setHint(const QString &text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// See qxDragData.
    void dropped(const QMimeData &data);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void layColumns();
    int widthOfNames() const;
    QSize sizeOfRows(int rows) const;

    qxSetEntriesModel *m_model;
    QString m_hint;
};
