#pragma once

#include "Undo/qxVariantEdits.h"

#include <QObject>

class QAction;
class QKeySequence;
class QMenu;
class qxPanelEvents;
class qxVariantsModel;
class qxVariantsView;

/// What users do with the variants and options that are selected in the dock.
class qxVariantActions : public QObject {
    Q_OBJECT

public:
    /// The actions work while the view has the focus. `newMenu` is shown as one of them.
    qxVariantActions(QUndoStack *steps, qxPanelEvents *events, qxVariantsModel *rows,
                     qxVariantsView *view, QMenu *newMenu);

    const QList<QAction *> &actions() const { return m_actions; }
    void retranslate();
    /// The set that variants are added to without asking; none for an empty name.
    void setCurrentSet(const QString &set);

Q_SIGNALS:
    /// The user wants to show the current option.
    void selectWanted();
    /// The user wants to type a hotkey for the current option.
    void keyWanted();
    /// What came of the last edit, for the user; empty when there is nothing to say.
    void told(const QString &what);

private:
    void build();
    QAction *add(const char *text, const QKeySequence &key, void (qxVariantActions::*run)());
    void follow();
    void nameAddToCurrent();

    void renameCurrent();
    void rename(const qxVariantName &variant, const QString &option, const QString &name);
    void remove();
    void removeVariants(const qxVariantEdits::Variants &variants);
    void removeOptions();
    void addOptions();
    void moveUp() { move(false); }
    void moveDown() { move(true); }
    void move(bool down);
    void makeDefault();
    void addToCurrent();
    void addToChosen();
    void addTo(const QString &set);

    QUndoStack &m_steps;
    qxPanelEvents *m_events;
    qxVariantsModel *m_rows;
    qxVariantsView *m_view;
    QString m_set;
    QList<QAction *> m_actions;
    QList<const char *> m_texts; ///< of the actions, to be translated
    QList<QAction *> m_ofOption; ///< those that need an option
    QList<QAction *> m_ofVariant; ///< those that need a variant or an option of it
    QAction *m_rename;
    QAction *m_addToCurrent;
};
