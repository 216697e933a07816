#pragma once

#include <QObject>

class QWidget;
class qxVariantSet;

/// Lets the keys of sets and of options select them wherever in the window of `place` or in its
/// floating docks they are pressed, but for text fields, where a key writes. Of two sets with the
/// same key the first is selected; sets come before options, and both before what else the window
/// does with the key. Keys that operate the focused list or button (space, Enter, arrows) still do,
/// and so do those of actions that are for the focused part of the window alone.
class qxSetHotkeys : public QObject {
    Q_OBJECT

public:
    explicit qxSetHotkeys(QWidget *place);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// What else the key of the set does in the window of `place`, for people; empty for nothing.
    static QString conflictOf(const qxVariantSet &set, const QWidget &place);

signals:
    void pressed(const QString &set);
    /// `kind` as in qxVariantsModel.
    void optionPressed(int kind, const QString &variant, const QString &option);

private:
    QWidget *m_place;
};
