#include "qxSetHotkeys.h"

#include "qxVariantSet.h"
#include "qxVariants.h"
#include "qxVariantsModel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>

namespace {

/// Whether what is typed goes into the focused widget.
bool isTyping()
{
    const QWidget *const focus = QApplication::focusWidget();
    return qobject_cast<const QLineEdit *>(focus) || qobject_cast<const QPlainTextEdit *>(focus)
        || qobject_cast<const QTextEdit *>(focus) || qobject_cast<const QKeySequenceEdit *>(focus)
        || qobject_cast<const QAbstractSpinBox *>(focus);
}

struct Combination {
    int key;
    Qt::KeyboardModifiers modifiers;
};

/// Whether the action's keys work only while the focus is in some part of the window.
bool isForPartOnly(const QAction &action)
{
    return action.shortcutContext() == Qt::WidgetShortcut
        || action.shortcutContext() == Qt::WidgetWithChildrenShortcut;
}

/// Whether the key operates the focused widget, which people without a mouse depend on.
bool isOperating(const Combination &pressed)
{
    static const int keys[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,
                               Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Right};
    const QWidget *const focus = QApplication::focusWidget();
    const bool isOperated = qobject_cast<const QAbstractItemView *>(focus)
        || qobject_cast<const QAbstractButton *>(focus) || qobject_cast<const QComboBox *>(focus);
    return isOperated && !pressed.modifiers
        && std::find(std::begin(keys), std::end(keys), pressed.key) != std::end(keys);
}

/// The action of the focused list, or of what it is in, with that key; null for none.
const QAction *focusedActionWith(const Combination &pressed)
{
    const QKeySequence key(pressed.key | int(pressed.modifiers));
    for (const QWidget *at = QApplication::focusWidget(); at; at = at->parentWidget()) {
        for (const QAction *action : at->actions()) {
            if (isForPartOnly(*action) && action->shortcuts().contains(key))
                return action;
        }
    }
    return nullptr;
}

/// The first set with that key; there may be thousands, but a key is not pressed that often.
const qxVariantSet *setWith(const Combination &pressed)
{
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set->key > 0 && set->key == pressed.key && set->modifiers == pressed.modifiers)
            return set;
    }
    return nullptr;
}

struct Option {
    int kind = -1; ///< -1 for none
    QString variant;
    QString name;
};

Option optionWith(const Combination &pressed)
{
    Option found;
    qxVariantsModel::visit([&](int kind, const qxVariant &variant) {
        for (const qxVariantOption &option : variant.options) {
            if (found.kind < 0 && option.key > 0 && option.key == pressed.key
                && option.modifiers == pressed.modifiers)
                found = {kind, variant.name, option.name};
        }
    });
    return found;
}

/// The window of the widget; docks that float belong to the one they come from.
const QWidget *windowOf(const QWidget &widget)
{
    const QWidget *window = widget.window();
    while (window->windowType() == Qt::Tool && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

/// The window's action with that key; null for none.
const QAction *actionWith(const QKeySequence &key, const QWidget &window)
{
    for (const QAction *action : window.findChildren<QAction *>()) {
        if (action->shortcuts().contains(key))
            return action;
    }
    return nullptr;
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
    if (!watched->isWidgetType()
        || windowOf(*static_cast<QWidget *>(watched)) != windowOf(*m_place))
        return false;
    const auto *const key = static_cast<QKeyEvent *>(event);
    const Combination pressedKey{key->key(), key->modifiers() & ~Qt::KeypadModifier};
    if (isTyping() || isOperating(pressedKey) || focusedActionWith(pressedKey))
        return false;
    const qxVariantSet *const set = setWith(pressedKey);
    const Option option = set ? Option() : optionWith(pressedKey);
    if (!set && option.kind < 0)
        return false;
    event->accept();
    if (isOverride || key->isAutoRepeat())
        return true;
    if (set)
        emit pressed(set->name);
    else
        emit optionPressed(option.kind, option.variant, option.name);
    return true;
}

QString qxSetHotkeys::conflictOf(const qxVariantSet &set, const QWidget &place)
{
    if (set.key <= 0)
        return QString();
    QStringList lines;
    const Combination own{set.key, set.modifiers};
    for (const qxVariantSet *other : qxVariants::_variantSets) {
        if (other->name == set.name || other->key != set.key || other->modifiers != set.modifiers)
            continue;
        const bool isFirst = setWith(own)->name == set.name;
        lines << (isFirst ? tr("\"%1\" has this key, too; this set comes first.")
                          : tr("\"%1\" has this key, too, and comes first."))
                     .arg(other->name);
        break;
    }
    const Option option = optionWith(own);
    if (option.kind >= 0)
        lines << tr("The option \"%1\" of \"%2\" has this key, too; this set comes first.")
                     .arg(option.name, option.variant);
    if (const QAction *action =
            actionWith(QKeySequence(set.key | int(set.modifiers)), *windowOf(place)))
        lines << (isForPartOnly(*action)
                      ? tr("\"%1\" has this key, too, and comes first in the list of sets.")
                      : tr("\"%1\" has this key, too; this set comes first."))
                     .arg(QString(action->text()).remove('&'));
    return lines.join('\n');
}
