#pragma once

#include <QMenu>

class QUndoStack;
class qxCameraFlight;

/// The menu with the viewpoints of the scene. Its keys work in the whole window, also as long as
/// the menu was never shown.
class qxViewpointMenu : public QMenu {
    Q_OBJECT

public:
    /// Captures, renames and deletes viewpoints as steps of the stack.
    qxViewpointMenu(QUndoStack *steps, QWidget *parent);

    /// Call it for a new scene: those that the file has now are part of it and are not deleted.
    void showNewScene();
    /// Call it when viewpoints may have come, gone or changed.
    void refresh();

Q_SIGNALS:
    /// Something was done that is not seen at once, or why not, as a sentence.
    void told(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    QAction *add(const char *text, const QKeySequence &key, void (qxViewpointMenu::*run)());
    QAction *addViewpoint();
    void retranslate();
    void check();
    void goTo(int viewpoint);
    void goToNext() { step(1); }
    void goToPrevious() { step(-1); }
    void step(int way);
    void capture();
    void rename();
    void remove();
    QString currentName() const;

    QUndoStack *m_steps;
    qxCameraFlight *m_flight;
    QAction *m_end; ///< viewpoints stand before it
    QList<QAction *>
        m_viewpoints; ///< the first ones, with keys, always; others as long as there are
    QAction *m_smooth;
    QAction *m_rename;
    QAction *m_delete;
    int m_ofFile = 0; ///< how many viewpoints the file has
    QList<QPair<QAction *, const char *>> m_texts; ///< to be translated
};
