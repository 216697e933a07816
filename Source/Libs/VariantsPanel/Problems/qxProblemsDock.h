#pragma once

#include "qxFinding.h"

#include <QDockWidget>
#include <QMap>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QStackedWidget;
class QToolButton;
class QTreeView;
class qxProblems;
class qxProblemsFilter;
class qxProblemsModel;
class qxSetEdits;
struct qxVariantKind;

/// The dock "Problems": what is wrong with sets and variants, or hardly meant. It leads to the
/// place of a problem and offers what can be done about it.
class qxProblemsDock : public QDockWidget {
    Q_OBJECT

public:
    /// Shows the problems and mends them through `edits`; both must outlive this.
    qxProblemsDock(qxProblems *problems, qxSetEdits *edits, QWidget *parent = nullptr);

    /// The list.
    QTreeView *view() const { return m_view; }

Q_SIGNALS:
    /// The user wants to see what a problem belongs to: the set, and what of it.
    void setWanted(const QString &set, const qxFindingPlace &place);
    /// The same of a variant; `option` is empty for the variant as a whole.
    void variantWanted(const qxVariantKind &kind, const QString &variant, const QString &option);
    /// The same of a group.
    void groupWanted(const QString &group);

protected:
    /// Qt calls this.
    void changeEvent(QEvent *event) override;

private:
    QWidget *buildTopLine();
    void buildView();
    QAction *addAction(const QKeySequence &key, void (qxProblemsDock::*run)());
    void retranslate();
    void follow();
    void showCounts();
    void showEmptyOrList();
    void select(const qxFindings &findings);
    qxFindings selected() const;
    void showMenu(const QPoint &place);
    void fillFixes();
    void fillCandidates();
    void goThere();
    void copy();
    void repairClear();

    qxProblems *m_problems;
    qxSetEdits *m_edits;
    qxProblemsModel *m_model;
    qxProblemsFilter *m_filter;
    QLineEdit *m_search;
    QMap<qxSeverity, QToolButton *> m_severities;
    QToolButton *m_repair;
    QMenu *m_menu; ///< what can be done about what is selected
    QMenu *m_candidates;
    QAction *m_go;
    QAction *m_copy;
    QAction *m_repairClear;
    QStackedWidget *m_pages;
    QTreeView *m_view;
    QLabel *m_empty;
    QLabel *m_told; ///< what came of the last repair
};
