#pragma once

#include <QObject>

class QWidget;
class qxTakenKeys;
class qxVariantSet;
struct qxVariantKind;

/// Lets the keys of sets and of options select them wherever in the window of `place` or in its
/// floating docks they are pressed, but for text fields, where a key writes. Of two sets with the
/// same key the first is selected; sets come before options. Keys that the window has taken select
/// nothing, and those that operate the focused list or button (space, Enter, arrows, pages) still
/// do.
class qxSetHotkeys : public QObject {
    Q_OBJECT

public:
    qxSetHotkeys(qxTakenKeys *taken, QWidget *place);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// That the window has the key of the set, for people; empty when it has not.
    static QString flawOf(const qxVariantSet &set, const qxTakenKeys &taken);
    /// What else has the key of the set, for people; empty for nothing.
    static QString conflictOf(const qxVariantSet &set, const qxTakenKeys &taken);

signals:
    void pressed(const QString &set);
    void optionPressed(const qxVariantKind &kind, const QString &variant, const QString &option);

private:
    qxTakenKeys *m_taken;
    QWidget *m_place;
};
