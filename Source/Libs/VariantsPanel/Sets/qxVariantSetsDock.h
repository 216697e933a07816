#pragma once

#include <QDockWidget>
#include <QMap>

class QAction;
class QLabel;
class QLineEdit;
class QToolButton;
class QUndoStack;
class qxPanelEvents;
class qxSetEdits;
class qxSetForm;
class qxSetHotkeys;
class qxSetsView;
class qxTakenKeys;
struct qxVariantKind;

/// The dock "Variant Sets": shows, selects, captures and edits groups and sets.
///
/// It follows the module's announcements, whoever causes them, and needs nothing of the host but
/// HostApi. The keys of sets work in the whole window that it is in, but for those that the window
/// has itself (qxTakenKeys).
class qxVariantSetsDock : public QDockWidget {
    Q_OBJECT

public:
    explicit qxVariantSetsDock(QWidget *parent = nullptr);

    /// What the user did here, to undo.
    QUndoStack *undoStack() const;
    /// What can be done with sets, for the menu of a window.
    const QList<QAction *> &setActions() const { return m_actions; }
    qxSetsView *view() const { return m_view; }

    /// Applies a set to the scene.
    void selectSet(const QString &name);
    /// Gives sets these previews, by their names, in one step.
    void setPreviews(const QMap<QString, QByteArray> &previews);

signals:
    /// The user wants pictures of these sets as each looks when it is selected. That is for whoever
    /// can put the scene back; setPreviews takes the pictures.
    void previewsWanted(const QStringList &sets);
    /// A set or an option is about to be selected by the user: the time to remember the present
    /// state.
    void aboutToSelect();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildContents();
    void buildActions();
    void retranslate();
    /// Its key works while the focus is in the view, unless `where` says otherwise.
    QAction *addAction(const char *text, const QKeySequence &key, void (qxVariantSetsDock::*run)(),
                       Qt::ShortcutContext where = Qt::WidgetWithChildrenShortcut);
    QWidget *buildTopLine();
    void showMenu(const QPoint &globalPosition);
    void showFound();
    void followCurrent();
    void followGroup();
    void followSelection();

    void selectOption(const qxVariantKind &kind, const QString &variant, const QString &option);
    void selectCurrent();
    void goToSearch();
    /// Applies the first set that the search leaves.
    void selectFound();
    void addSet();
    void addGroup();
    void captureSet();
    void showNewSet(const QString &name);
    void updateSet();
    /// Of what the scene shows for the set under the cursor, or of all that are selected.
    void makePreview();
    void makeAllPreviews();
    void makePreviewsOf(const QStringList &sets);
    enum PreviewWay { AsShown, BySelecting, NotAtAll };
    PreviewWay askForPreviewWay(const QString &set);
    void renameCurrent();
    void duplicateSets();
    void move(bool down);
    void moveUp() { move(false); }
    void moveDown() { move(true); }
    /// Lets the user choose the group for the selected sets.
    void askWhereTo();
    void setGroupVisible(bool isVisible);
    void removeSelected();
    void removeGroupsWithSets();
    void showConnected();

    qxPanelEvents *m_events;
    qxSetEdits *m_edits;
    qxTakenKeys *m_taken;
    qxSetsView *m_view;
    qxSetForm *m_form;
    QLineEdit *m_search;
    QLabel *m_found; ///< how many sets the search leaves
    QToolButton *m_gallery;
    QToolButton *m_capture;
    QList<QAction *> m_actions;
    QList<const char *> m_texts; ///< of the actions, to be translated
    QList<QAction *> m_ofSets; ///< those that need a set
    QAction *m_withSets; ///< needs a group
    QAction *m_groupVisible;
};
