#pragma once

#include "qxNodeSelection.h"

#include <QMenu>

#include <functional>

class QUndoStack;
class qxNodeVisibility;
struct qxVariantKind;

/// What can be done with the nodes that are picked: the menu of the window, and the context menu of
/// view and tree. Its keys work in the whole window.
class qxNodeMenu : public QMenu {
    Q_OBJECT

public:
    /// What is given must outlive it. Variants are made as steps of the stack.
    qxNodeMenu(qxNodeSelection *picked, qxNodeVisibility *visibility, QUndoStack *steps,
               QWidget *parent);

    /// Who knows the set that present states are added to; an empty name for none.
    void setTarget(const std::function<QString()> &currentSet) { m_target = currentSet; }

Q_SIGNALS:
    /// The view is to show what is picked as large as it can.
    void frameWanted();
    /// The user wants to see this variant or this set.
    void variantWanted(const qxVariantKind &kind, const QString &variant);
    void setWanted(const QString &set);
    /// Something was done that is not seen at once, as a sentence.
    void told(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    QAction *add(const char *text, int key, const std::function<void()> &run);
    QMenu *addSubmenu(const char *text, void (qxNodeMenu::*fill)());
    void retranslate();
    void prepare();
    void toggleIsolation();
    void pickParent();
    void fillMake();
    void make(const qxVariantKind &kind);
    void fillControls();
    void fillUsers(QMenu *menu, const qxVariantKind &kind, const QString &variant);
    void addToSet();
    void copy(bool withPath);

    qxNodeSelection *m_picked;
    qxNodeVisibility *m_visibility;
    QUndoStack *m_steps;
    std::function<QString()> m_target;
    QAction *m_isolate;
    QAction *m_showAll;
    QAction *m_addToSet;
    QMenu *m_make;
    QMenu *m_controls;
    QList<QAction *> m_ofNodes; ///< those that need a node
    QList<QPair<QAction *, const char *>> m_texts; ///< to be translated
};
