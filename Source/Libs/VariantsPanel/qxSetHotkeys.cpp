#include "qxSetHotkeys.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

/// Whether what is typed goes into the focused widget.
bool isTyping()
{
    const QWidget *const focus = QApplication::focusWidget();
    return qobject_cast<const QLineEdit *>(focus) || qobject_cast<const QPlainTextEdit *>(focus)
        || qobject_cast<const QTextEdit *>(focus) || qobject_cast<const QKeySequenceEdit *>(focus)
        || qobject_cast<const QAbstractSpinBox *>(focus);
}

/// The first set with that key; there may be thousands, but a key is not pressed that often.
QString setWith(int key, Qt::KeyboardModifiers modifiers)
{
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set->key > 0 && set->key == key && set->modifiers == modifiers)
            return set->name;
    }
    return QString();
}

} // namespace

qxSetHotkeys::qxSetHotkeys(QWidget *place) : QObject(place), m_place(place)
{
    qApp->installEventFilter(this);
}

bool qxSetHotkeys::eventFilter(QObject *watched, QEvent *event)
{
    // The override comes first: accepted, it keeps menus from taking the key of a set.
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    if (!watched->isWidgetType() || static_cast<QWidget *>(watched)->window() != m_place->window())
        return false;
    const auto *const key = static_cast<QKeyEvent *>(event);
    if (isTyping())
        return false;
    const QString set = setWith(key->key(), key->modifiers() & ~Qt::KeypadModifier);
    if (set.isEmpty())
        return false;
    event->accept();
    if (!isOverride && !key->isAutoRepeat())
        emit pressed(set);
    return true;
}
