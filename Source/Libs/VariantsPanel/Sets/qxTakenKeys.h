#pragma once

#include <QHash>
#include <QObject>

class QWidget;

/// The keys that a window uses itself and that hotkeys must not use: those of its actions (visible,
/// enabled and active or not), shortcuts, menus, buttons and labels, those that edit text, and
/// those of every window, such as Tab and Escape. They are read from the window, which may change
/// them at any time. A window that handles keys in any other way must add actions with these keys
/// to its widgets.
class qxTakenKeys : public QObject {
    Q_OBJECT

public:
    explicit qxTakenKeys(QWidget *place);

    /// The part of the window that uses the key (as in QKeySequence, with modifiers), as text;
    /// empty for none.
    QString ownerOf(int key) const;
    /// Reads the keys from the window again, for changes without a signal.
    void look() { m_isKnown = false; }

    /// The window of the widget; floating docks belong to their main window.
    static const QWidget *windowOf(const QWidget &widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The keys or their users have changed.
    void changed();

private:
    void tellChange();

    QWidget *m_place;
    mutable QHash<int, QString> m_owners;
    mutable bool m_isKnown = false;
    bool m_isTelling = false;
};
