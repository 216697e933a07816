#pragma once

#include "Undo/qxVariantMemento.h"

#include <QKeySequence>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QKeySequenceEdit;
class QLabel;
class QToolButton;
class QUndoStack;
class qxPanelEvents;
class qxTakenKeys;

/// Shows and edits what a variant has besides its options, and an option besides its name: default
/// state, hotkey, and whether it is an action. Each edit can be undone.
class qxVariantForm : public QWidget {
    Q_OBJECT

public:
    qxVariantForm(QUndoStack *steps, qxPanelEvents *events, const qxTakenKeys *taken);

    /// Shows the variant with this option of it; an empty option is none, and so is an empty name.
    void showOption(const qxVariantName &variant, const QString &option);
    /// Lets the user type a hotkey for the option.
    void goToKey();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layFieldsOut();
    void retranslate();
    void refresh();
    void showDefaults(const qxVariant *variant);
    void showKey(const QString &shortcut);
    void takeDefault();
    void takeKey();
    void takeAction(bool isAction);

    QUndoStack &m_steps;
    const qxTakenKeys *m_taken;
    qxVariantName m_variant{};
    QString m_option;
    QComboBox *m_default;
    QList<QPair<QString, QString>> m_choices; ///< of it: texts and states
    QKeySequenceEdit *m_key;
    QKeySequence m_shownKey; ///< what the option has
    QToolButton *m_noKey;
    QLabel *m_keyNote;
    QCheckBox *m_action;
    QList<QPair<QLabel *, const char *>> m_labels; ///< with texts to be translated
};
