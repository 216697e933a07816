#pragma once

#include "qxSetEntry.h"

#include <QWidget>

class QLabel;
class QMenu;
class QMimeData;
class QToolButton;
class qxEntrySearch;
class qxPanelEvents;
class qxProblems;
class qxSetEdits;
class qxSetEntriesModel;
class qxSetEntriesView;

/// Shows and edits what a set holds: a table of entries, a line to find what may be added, and
/// commands for what is selected. Every edit is an undo step.
class qxSetContents : public QWidget {
    Q_OBJECT

public:
    qxSetContents(qxPanelEvents *events, qxSetEdits *edits);

    /// Shows the set of that name as it is now; nothing for an empty or unknown one.
    void showSet(const QString &name);
    /// Where to find what is wrong with entries.
    void setProblems(const qxProblems *problems);

protected:
    void changeEvent(QEvent *event) override;

private:
    typedef std::vector<qxSetEntry> Entries;

    void buildCommands();
    QAction *addCommand(const char *text, const QKeySequence &key, void (qxSetContents::*run)());
    QAction *makeSeparator();
    QWidget *buildTopLine();
    void retranslate();
    void followSelection();
    Entries selected() const;
    void showHint();
    void say(const QString &text);
    void follow(const QString &note);
    void goTo(int row);

    void add(const Entries &entries);
    void take(const QMimeData &dropped);
    void showMenu(const QPoint &position);
    void addStates(QMenu &menu);
    void addRepairs(QMenu &menu);
    void fillAddMenu();

    void chooseState();
    void takeShown();
    void removeSelected();
    void copy();
    void paste();
    void renameVariant();
    void showVariants();

    qxSetEdits *m_edits;
    qxSetEntriesModel *m_model;
    qxSetEntriesView *m_view;
    qxEntrySearch *m_search;
    QToolButton *m_add;
    QToolButton *m_remove;
    QLabel *m_note;
    QList<QPair<QAction *, const char *>> m_commands; ///< with texts to be translated
    QList<QAction *> m_inMenu; ///< with separators
    QList<QAction *> m_ofEntries; ///< those that need a selected entry
    QList<QAction *> m_ofVariants; ///< those that need a selected variant
    QAction *m_rename; ///< needs exactly one
};
