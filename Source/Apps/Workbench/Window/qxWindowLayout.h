#pragma once

#include <QObject>

class QDockWidget;
class QMainWindow;

/// Where the docks of a window stand. It is remembered for each size and scale of the screen; at
/// first it follows from the room that there is: docks beside the view, or behind each other where
/// the window is narrow.
///
/// Docks above or below the view never take more than half of the height.
class qxWindowLayout : public QObject {
    Q_OBJECT

public:
    /// Follows the window, which must have all its docks.
    explicit qxWindowLayout(QMainWindow *window);

    /// Takes size and places as they were last on this screen. Without these, docks are placed as
    /// soon as the window is shown.
    void restore();
    /// Remembers size and places for this screen.
    void save() const;
    /// Places all docks as at first.
    void reset();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString screenKey() const;
    void addDocks();
    void sizeDocks();
    void limitHeights();

    QMainWindow *m_window;
    QList<QDockWidget *> m_docks; ///< in the order in which they were made
    bool m_isPlaced = false;
};
