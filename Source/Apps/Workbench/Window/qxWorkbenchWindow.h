#pragma once

#include "Script/qxFileScripts.h"
#include "Session/qxRecoveryFile.h"
#include "Session/qxSceneSnapshot.h"
#include "qxUnsavedChanges.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

class QLabel;
class QStackedWidget;
class QTreeView;
class QUndoStack;
class qxAnimationBar;
class qxLanguage;
class qxBlockedScriptReport;
class qxFileClaim;
class qxKeysPage;
class qxLogView;
class qxNodeMenu;
class qxNodeSelection;
class qxNodeVisibility;
class qxPanelEvents;
class qxPictureDialog;
class qxProblems;
class qxPictureExport;
class qxPresentation;
class qxPreviewMaker;
class qxRecentFiles;
class qxSceneTree;
class qxSceneTreeModel;
class qxSceneView;
class qxScriptConsole;
class qxWindowWatchdog;
struct qxFindingPlace;
class qxSession;
class qxStartPage;
class qxTheme;
class qxRecovery;
class qxVariantSetsDock;
class qxVariantsDock;
class qxViewpointMenu;
class qxWindowLayout;

/// The window of the program: the scene, and docks for sets, variants, nodes, log and scripts.
class qxWorkbenchWindow : public QMainWindow {
    Q_OBJECT

public:
    qxWorkbenchWindow();
    ~qxWorkbenchWindow() override;

    /// Replaces the scene by that of the file, without asking. If it fails, the reason is shown and
    /// the old scene stays. If only the variants of the file could not be read, the old scene is
    /// read again from its own file.
    bool openFile(const QString &path);
    /// Opens the file for the user: asks about unsaved changes; when another window of this user
    /// has the file, brings that one to the front instead.
    void openAnother(const QString &path);
    /// Asks before it overwrites a file that others have changed since it was opened. If it fails,
    /// the reason is shown, and the changes stay unsaved.
    bool saveFile(const QString &path);
    /// Empty for a scene that has no file yet.
    QString filePath() const { return m_path; }

    qxVariantSetsDock *setsDock() const { return m_sets; }
    qxSceneView *sceneView() const { return m_view; }
    qxScriptConsole *console() const { return m_console; }

    /// Asks about edits that a window left behind which did not end by itself.
    void offerRecovery();
    /// Restores the scene to its state before the last selection.
    void goBack();
    /// The menu with the files that were opened or saved last, the newest first.
    QMenu *recentMenu() const { return m_recent; }

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildDocks();
    void buildProblems();
    /// Makes the entry of the set that is shown the current one.
    void showEntry(const qxFindingPlace &place);
    void giveKey(QAction *action, const QKeySequence &key);
    QDockWidget *dockOf(QWidget *contents, const char *title, const QString &name);
    QMenu *addMenu(const char *title);
    /// Sets the text of the action, translated again at each change of language.
    QAction *named(QAction *action, const char *text);
    void rememberTileSize();
    void buildPictures();
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildPanesMenu(QMenu *menu);
    void fillLanguageMenu(QMenu *menu);
    void fillThemeMenu(QMenu *menu);
    void buildToolBar();
    void buildSetsMenu();
    void buildVariantsMenu();
    void buildHelpMenu();
    void retranslate();
    void showUndo();
    void closeLater();
    void showKeys();

    void askAndOpen();
    void openFirst(const QStringList &paths);
    bool save();
    bool write(const QString &path);
    bool askAndSaveAs();
    bool mayLeave();
    void finishTyping();
    bool isToBeCopied() const;
    QString usualFolder() const;
    bool showOtherWindow(const qxFileClaim &claim, const QString &path);
    void comeToFront();
    void showPath(const QString &path, std::unique_ptr<qxFileClaim> claim);
    void showCentre();
    void showTitle();
    void showUnsaved(qxUnsavedChanges::Sort sort);
    void recover(const qxRecoveryFile::Left &left);
    void askAboutScripts();
    void showScripts();
    void decideOn(const QList<qxFileScripts::Script> &scripts);
    void watchBlockedScripts();
    void forgetScene();
    bool openOrClose(const QString &path);
    void takeBackScene();
    void showNewScene();
    void buildNodes();
    void buildNodeMenus();
    void tellPicked();
    void rememberForBack();
    void rememberForScript();
    void focusPane(int step);
    static QDockWidget *dockAround(QWidget *widget);
    void followScripts();
    QString failureReason() const;
    void showFailure(const QString &what, const QString &reason);

    std::unique_ptr<qxLanguage> m_language; ///< must precede everything that has texts
    std::unique_ptr<qxTheme> m_theme;
    std::unique_ptr<qxSession> m_session;
    std::unique_ptr<qxFileClaim> m_claim; ///< of the open file; null for none
    std::unique_ptr<qxSceneSnapshot> m_before; ///< what "Back" leads to; null for nothing
    std::unique_ptr<qxWindowWatchdog> m_watchdog;
    std::unique_ptr<qxBlockedScriptReport> m_blockedScripts;
    std::unique_ptr<qxSceneSnapshot> m_beforeScript; ///< null when none runs
    QString m_path;
    bool m_isNewScene = false; ///< since the last file was asked for
    QString m_lastError; ///< of the log
    qxPanelEvents *m_events;
    qxNodeSelection *m_picked; ///< in view and tree
    qxNodeVisibility *m_visibility;
    QLabel *m_pickedText; ///< in the status line
    qxSceneView *m_view;
    qxRecentFiles *m_recentFiles;
    qxStartPage *m_start;
    QStackedWidget *m_centre; ///< the start page or the view
    qxWindowLayout *m_layout;
    qxAnimationBar *m_animation;
    std::unique_ptr<qxPictureDialog> m_pictureDialog;
    qxVariantSetsDock *m_sets;
    qxProblems *m_problems;
    qxVariantsDock *m_variants;
    qxSceneTree *m_sceneTree;
    qxSceneTreeModel *m_tree; ///< that of m_sceneTree
    QTreeView *m_treeView; ///< the same
    qxNodeMenu *m_nodes;
    qxViewpointMenu *m_viewpoints;
    qxLogView *m_log;
    qxScriptConsole *m_console;
    qxUnsavedChanges *m_unsaved;
    qxPreviewMaker *m_previews;
    qxPresentation *m_presentation;
    qxPictureExport *m_export;
    bool m_closesLater = false; ///< when the presentation has ended
    qxRecovery *m_recovery;
    bool m_showsOtherState = false; ///< than the file, without any edit
    QMenu *m_recent;
    QAction *m_undo;
    QAction *m_redo;
    QAction *m_back;
    QAction *m_open;
    QAction *m_save;
    QAction *m_everything;
    QAction *m_rayTracing;
    QToolBar *m_tools;
    QPointer<qxKeysPage> m_keys;
    QList<QPair<QAction *, const char *>> m_texts; ///< to be translated
    QList<QPair<QDockWidget *, const char *>> m_titles; ///< to be translated
};
