#include "qxTakenKeys.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QShortcut>
#include <QTimer>

namespace {

QString nameOf(QString text)
{
    return text.remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0);
}

/// Goes through a window and notes who has which key.
class Survey {
public:
    explicit Survey(const QWidget &window)
    {
        look(window);
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            // Dialogs are windows of their own; menus are, too, but belong here.
            if (qxTakenKeys::windowOf(*widget) == &window || qobject_cast<const QMenu *>(widget))
                look(*widget);
        }
        for (const QShortcut *shortcut : window.findChildren<QShortcut *>())
            note(shortcut->key(), shortcut->whatsThis());
        noteEditing();
        noteGuiding();
        for (const QAction *action : m_ofOneWidget)
            noteAction(*action);
    }

    QHash<int, QString> owners; ///< by key

private:
    /// The first combination decides: after it the window waits for the others.
    void note(const QKeySequence &key, const QString &owner)
    {
        if (!key.isEmpty() && !owners.contains(key[0]))
            owners[key[0]] = owner.isEmpty() ? qxTakenKeys::tr("the window") : owner;
    }

    void noteAction(const QAction &action)
    {
        for (const QKeySequence &key : action.shortcuts())
            note(key, nameOf(action.text()));
    }

    void look(const QWidget &widget)
    {
        if (m_seen.contains(&widget))
            return;
        m_seen.insert(&widget);
        const bool isMenuBar = qobject_cast<const QMenuBar *>(&widget);
        for (const QAction *action : widget.actions()) {
            // What a key does in more places says more of it.
            if (action->shortcutContext() == Qt::WidgetShortcut)
                m_ofOneWidget << action;
            else
                noteAction(*action);
            if (isMenuBar)
                note(QKeySequence::mnemonic(action->text()), nameOf(action->text()));
            if (action->menu())
                look(*action->menu());
        }
        if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
            note(button->shortcut(), nameOf(button->text()));
        const auto *const label = qobject_cast<const QLabel *>(&widget);
        if (label && label->buddy())
            note(QKeySequence::mnemonic(label->text()), nameOf(label->text()));
    }

    void noteEditing()
    {
        for (const auto key : {QKeySequence::Undo, QKeySequence::Redo, QKeySequence::Cut,
                               QKeySequence::Copy, QKeySequence::Paste, QKeySequence::SelectAll}) {
            for (const QKeySequence &each : QKeySequence::keyBindings(key))
                note(each, qxTakenKeys::tr("editing of text"));
        }
    }

    /// What every window does, without an action: the focus goes on, scripts, menus and edits are
    /// ended, menus open, and the window closes.
    void noteGuiding()
    {
        static const QKeySequence keys[] = {Qt::Key_Tab,
                                            Qt::SHIFT + Qt::Key_Tab,
                                            Qt::Key_Backtab,
                                            Qt::SHIFT + Qt::Key_Backtab,
                                            Qt::Key_Escape,
                                            Qt::Key_F10,
                                            Qt::SHIFT + Qt::Key_F10,
                                            Qt::Key_Menu,
                                            Qt::ALT + Qt::Key_F4};
        for (const QKeySequence &key : keys)
            note(key, QString());
    }

    QSet<const QWidget *> m_seen;
    QList<const QAction *> m_ofOneWidget;
};

} // namespace

qxTakenKeys::qxTakenKeys(QWidget *place) : QObject(place), m_place(place)
{
    qApp->installEventFilter(this);
}

const QWidget *qxTakenKeys::windowOf(const QWidget &widget)
{
    const QWidget *window = widget.window();
    while (window->windowType() == Qt::Tool && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

QString qxTakenKeys::ownerOf(int key) const
{
    if (!m_isKnown)
        m_owners = Survey(*windowOf(*m_place)).owners;
    m_isKnown = true;
    return m_owners.value(key);
}

/// Any number of actions changes in one turn of the event loop.
bool qxTakenKeys::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::ActionAdded && type != QEvent::ActionChanged
        && type != QEvent::ActionRemoved && type != QEvent::LanguageChange)
        return false;
    if (!m_isTelling)
        QTimer::singleShot(0, this, &qxTakenKeys::tellChange);
    m_isTelling = true;
    return false;
}

void qxTakenKeys::tellChange()
{
    m_isTelling = false;
    const QHash<int, QString> before = m_owners;
    m_isKnown = false;
    ownerOf(0);
    if (m_owners != before)
        Q_EMIT changed();
}
