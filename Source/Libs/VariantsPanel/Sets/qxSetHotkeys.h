#pragma once

#include <QObject>

class QWidget;
class qxTakenKeys;
class qxVariantSet;
struct qxVariantKind;
struct qxVariantOption;

/// Selects sets and options by their hotkeys, in the whole window of `place` and its floating docks
/// except text fields. Of two sets with the same key the first is selected; sets come before
/// options. Keys that the window uses itself select nothing, nor do those that operate the focused
/// list or button (space, Enter, arrows, pages).
class qxSetHotkeys : public QObject {
    Q_OBJECT

public:
    qxSetHotkeys(qxTakenKeys *taken, QWidget *place);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// A text that says that the window uses the set's hotkey itself; empty if it does not.
    static QString flawOf(const qxVariantSet &set, const qxTakenKeys &taken);
    /// A text that says what else has the set's hotkey; empty for nothing.
    static QString conflictOf(const qxVariantSet &set, const qxTakenKeys &taken);
    /// The same for the key of an option of that variant.
    static QString conflictOf(const qxVariantKind &kind, const QString &variant,
                              const qxVariantOption &option, const qxTakenKeys &taken);

Q_SIGNALS:
    void pressed(const QString &set);
    void optionPressed(const qxVariantKind &kind, const QString &variant, const QString &option);

private:
    qxTakenKeys *m_taken;
    QWidget *m_place;
};
