#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTimer>

class QAction;
class QKeyEvent;
class QMainWindow;
class qxSetCaption;
class qxVariantSetsDock;

/// Shows the scene alone on the whole screen. Keys lead from set to set in the order of the list;
/// the name of the set is shown on request, and the pointer hides while it rests. Afterwards the
/// window is exactly as it was.
class qxPresentation : public QObject {
    Q_OBJECT

public:
    /// `view` is the scene in the window. All three must outlive this.
    qxPresentation(QMainWindow *window, QWidget *view, qxVariantSetsDock *sets);

    ///@{
    /// Checkable actions without texts: the presentation, and whether it shows names.
    QAction *action() const { return m_action; }
    QAction *namesAction() const { return m_names; }
    ///@}
    bool isRunning() const { return m_isRunning; }
    void begin();
    void end();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The window is as it was before.
    void ended();

private:
    void retranslate();
    void hideParts();
    void restoreLayout();
    bool isKey(const QKeyEvent &event) const;
    void press(const QKeyEvent &event);
    void goTo(int step);
    QString shownSet() const;
    void showCaption();
    void showPointer();
    void tellKeys();

    QMainWindow *m_window;
    QWidget *m_view;
    qxVariantSetsDock *m_sets;
    qxSetCaption *m_caption;
    QAction *m_action;
    QAction *m_names;
    QTimer m_idle; ///< until the pointer hides
    QTimer m_hint; ///< while the keys are told
    QTimer m_restore; ///< until the window has had its time to become as large as it was
    QString m_shown; ///< the set that was selected last
    bool m_isRunning = false;
    bool m_isRestoring = false;
    ///@{
    /// Of the window before.
    QByteArray m_layout;
    QSize m_size;
    Qt::WindowStates m_state;
    bool m_hadMenus = true;
    bool m_hadStatus = true;
    bool m_hadTracking = false;
    QPointer<QWidget> m_focus;
    ///@}
};
