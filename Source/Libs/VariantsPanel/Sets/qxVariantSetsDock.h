#pragma once

#include <QDockWidget>
#include <QMap>

#include <functional>

class QAction;
class QLabel;
class QLineEdit;
class QToolButton;
class QUndoStack;
class qxGalleryBar;
class qxPanelEvents;
class qxProblems;
class qxPreviewAge;
class qxSetEdits;
class qxSetForm;
class qxSetHotkeys;
class qxSetsView;
class qxTakenKeys;
class qxVariantGroup;
struct qxVariantKind;

/// The dock "Variant Sets": shows, selects, captures and edits groups and sets.
///
/// It follows the module's notifications and works in any host, because it needs only HostApi. The
/// hotkeys of sets work in the dock's whole window, except keys that the window uses itself.
class qxVariantSetsDock : public QDockWidget {
    Q_OBJECT

public:
    /// A dock for any main window of Qt, which shows the sets of the registry.
    explicit qxVariantSetsDock(QWidget *parent = nullptr);

    /// The user's edits, for undo; owned by the dock. Cleared when the scene is.
    QUndoStack *undoStack() const;
    /// The same, to make edits that other docks show.
    qxSetEdits *edits() const { return m_edits; }
    /// The actions on sets, for the menu of a window.
    const QList<QAction *> &setActions() const { return m_actions; }
    ///@{
    /// An action for a tool bar: a set of what is shown, an empty one, list or gallery.
    QAction *captureAction() const { return m_captureAction; }
    QAction *addSetAction() const { return m_addSetAction; }
    QAction *galleryAction() const { return m_galleryAction; }
    ///@}
    /// Where to find what is wrong with the entries of sets, which are marked with it; it must
    /// outlive the dock.
    void setProblems(const qxProblems *problems);
    /// The list or gallery of the dock.
    qxSetsView *view() const { return m_view; }

    /// Applies a set to the scene in full, after aboutToSelect; an unknown name does nothing.
    void selectSet(const QString &name);
    ///@{
    /// Leads to a set or group. A search that leaves it out ends; hidden groups are shown if it is
    /// in one.
    void showSet(const QString &name);
    void showGroup(const QString &name);
    ///@}
    /// Gives sets these previews, by their names. Consecutive ones of the same `run` are undone in
    /// one step; 0 is a run of its own each time.
    void setPreviews(const QMap<QString, QByteArray> &previews, int run = 0);
    /// Does work that selects sets and restores the scene: the cursor stays where it is.
    void keepCursor(const std::function<void()> &work);
    /// Which previews are stale, for whoever knows of scene and light.
    qxPreviewAge *previewAge() const { return m_age; }
    /// The line below gallery or list, which shows how far previews are.
    qxGalleryBar *galleryBar() const { return m_bar; }

Q_SIGNALS:
    /// The user wants pictures of these sets, each as it looks when selected. The receiver must be
    /// able to restore the scene; it calls setPreviews with the pictures, and meanwhile, if it
    /// takes long, shows the progress in galleryBar().
    void previewsWanted(const QStringList &sets);
    /// The user has enough of previews that are being made.
    void previewsCancelled();
    /// This set was selected, by whomever, but not in keepCursor().
    void selected(const QString &set);
    /// The user is about to select a set or an option; receivers may record the present state.
    void aboutToSelect();

protected:
    ///@{
    /// Qt calls these.
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    ///@}

private:
    void buildContents();
    void buildActions();
    void retranslate();
    /// The action's key works while the view has the focus, unless `where` says otherwise.
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
    /// Selects the first set that the search finds.
    void selectFound();
    void addSet();
    void addGroup();
    void captureSet();
    void reveal(const qxVariantGroup *group, const std::function<bool()> &goThere);
    void updateSet();
    /// Pictures the scene for the current set, or each set if several are selected.
    void makePreview();
    void makeAllPreviews();
    void makePreviewsOf(const QStringList &sets);
    void noteMade(const QString &set);
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
    qxPreviewAge *m_age;
    qxSetsView *m_view;
    qxGalleryBar *m_bar;
    qxSetForm *m_form;
    QLineEdit *m_search;
    QLabel *m_found; ///< how many sets the search finds
    QToolButton *m_capture;
    QList<QAction *> m_actions;
    QList<const char *> m_texts; ///< of the actions, to be translated
    QList<QAction *> m_ofSets; ///< those that need a set
    QAction *m_captureAction;
    QAction *m_addSetAction;
    QAction *m_galleryAction;
    QAction *m_withSets; ///< needs a group
    QAction *m_groupVisible;
    QAction *m_hidden; ///< whether hidden groups are shown
    bool m_keepsCursor = false; ///< where it is, whatever is selected
};
