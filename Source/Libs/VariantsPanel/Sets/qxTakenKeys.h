#pragma once

#include <QHash>
#include <QObject>

class QWidget;

/// The keys with which the window of a place does something itself, so that sets leave them to it:
/// those of its actions (shown, enabled and in force just now or not), shortcuts, menus, buttons
/// and labels, those that edit text, and those that go through any window, such as Tab and Escape.
/// They are asked of the window, which may get others at any time; a window that takes keys in any
/// other way has to put them into actions of its widgets.
class qxTakenKeys : public QObject {
    Q_OBJECT

public:
    explicit qxTakenKeys(QWidget *place);

    /// What of the window has the key (as in QKeySequence, with its modifiers), for people; empty
    /// for nothing.
    QString ownerOf(int key) const;
    /// Asks the window once more, for what it does not announce.
    void look() { m_isKnown = false; }

    /// The window of the widget; docks that float belong to the one they come from.
    static const QWidget *windowOf(const QWidget &widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Other keys are taken, or by something else.
    void changed();

private:
    void tellChange();

    QWidget *m_place;
    mutable QHash<int, QString> m_owners;
    mutable bool m_isKnown = false;
    bool m_isTelling = false;
};
