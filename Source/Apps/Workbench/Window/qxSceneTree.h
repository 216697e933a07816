#pragma once

#include "qxNodeSelection.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTreeView;
class qxSceneTreeModel;

/// The tree of the scene's nodes below a field that searches it. What is selected in the tree is
/// picked, and the other way round.
class qxSceneTree : public QWidget {
    Q_OBJECT

public:
    /// The selection must outlive it.
    explicit qxSceneTree(qxNodeSelection *picked, QWidget *parent = nullptr);

    qxSceneTreeModel *model() const { return m_model; }
    QTreeView *view() const { return m_view; }
    QLineEdit *search() const { return m_search; }
    /// Searches for nothing any more and shows the first levels, for a new scene.
    void showNewScene();

Q_SIGNALS:
    /// The user wants to look at what is picked.
    void activated();
    /// The user wants a menu for what is picked.
    void menuWanted(const QPoint &globalPosition);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildView();
    void buildSearch();
    void retranslate();
    void filter();
    void openMatches();
    void showFound();
    void goToMatch(bool isBelow);
    /// Handles the keys of the field; false for one that it has no use for.
    bool takeSearchKey(int key, Qt::KeyboardModifiers modifiers);
    void pickSelected();
    void showPicked();
    void selectPicked();
    void showRow(const QModelIndex &index);
    void wantMenu(const QPoint &place);

    qxNodeSelection *m_picked;
    qxSceneTreeModel *m_model;
    QTreeView *m_view;
    QLineEdit *m_search;
    QLabel *m_found; ///< how many nodes the search finds
    QAction *m_goToSearch;
    QAction *m_next;
    QAction *m_previous;
    std::vector<osg::NodeRefPtr> m_expanded; ///< before the search
    bool m_isFollowing = false; ///< the selection comes from elsewhere
};
